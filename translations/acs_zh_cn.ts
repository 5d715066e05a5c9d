<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ACSEventConfigUI::CACSEventConfigWidget</name>
    <message>
        <source>EVENT_CFG-MODULE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alarm cfg details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ACSEventCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ACSEventNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The SMTP setting is not enabled. Do you want to edit it right now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You do not have system config right.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ACSEventSchemeEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abnormal Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>External Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm inputs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm scheme on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notify</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defence Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No event selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClientApplication</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data directory %1 cannot be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Site file %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClientOptionParser</name>
    <message>
        <source>Keep settings, site and databases in this directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the site from this file instead of the data directory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work as administrator or operator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all texts in this language.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the dark or the light theme.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the page of this module at the start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw the window into this PNG file once everything is shown, and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print this help and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the version and end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Client for configuring the alarm schemes of a site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The option --%1 is given more than once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for --%2; use one of: %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: acs-scheme &lt;command&gt; [options]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;acs-scheme &lt;command&gt; --help&quot; lists a command&apos;s options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GroupTreeCtrl</name>
    <message>
        <source>Search devices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device tree</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Modules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No module is loaded; put a module file into the &quot;modules&quot; folder beside the program and start again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LXGUI::LXCustomDialog</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LXGUI::LXDialogTitleBar</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LXGUI::LXMessageBox</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailCheck</name>
    <message>
        <source>Enter a mail server, or switch mail off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The server is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no host name and no address.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The user name is too long or holds control characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sender must be one mail address, like guard@example.com.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailSettingsDialog</name>
    <message>
        <source>Send &amp;mail when a scheme asks for it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail &amp;servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;erver:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mail.example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>empty: no authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;nder:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>guard@example.com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mail settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New server</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mail…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;data directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Module %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no module &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n device(s)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>ACS Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - ACS Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The theme changes at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About ACS Client</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ACS Client %1
Configures the alarm schemes of an access-control site.

Data directory: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The data directory is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No event is selected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MakeSiteCommand</name>
    <message>
        <source>Writes the site file of a made-up site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of doors, 1 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File to write; without it the site goes to the standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usage: %1 --doors N [--seed S] [--output FILE]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--doors is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--doors takes a whole number from 1 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--seed takes a whole number from 0 to 4294967295.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--output takes the name of a file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>the module key &quot;%1&quot; is taken by %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module gives no page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is no module (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file cannot be loaded (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module gives no root object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module does not offer the interface %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module has no key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module refuses to be loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module refuses to start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module gives no user interface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the module describes no page</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmDayDetailEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SUN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TUE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>THU</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FRI</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SAT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1 row, the end time is earlier than the start time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region %1 begin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region %1 end</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmDayEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>6 regions at most.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details for %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmDefenceTimeEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Week Plan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Monday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock all days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmListItem</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmListItemView</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EMap Twinkle:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QAlarmOutEditor</name>
    <message>
        <source>Form</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto Open:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Time:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1s - 43200s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick an output in the tree and click it to see its settings here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click the output again to see its settings.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QCommon</name>
    <message>
        <source>External Alarm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Forced Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duress Code Entered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duress Fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Open Too Long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller Tampered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Reader Tampered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire Alarm Input</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Emergency Button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card on Block List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too Many Attempts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anti-Passback Violation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Interlock Violation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Expired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card Not Yet Valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Access at This Door</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outside Access Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrong PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First-Card Rule Not Met</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second Person Missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Not Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Lock Fault</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by Card and PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by Fingerprint</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by PIN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Access by First Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Button Pressed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Door Closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened by Operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened by Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked by Schedule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SchemeStoreOutcome</name>
    <message>
        <source>%1 %2</source>
        <comment>what happened, what to do next</comment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) loaded.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) saved.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The schemes could not be loaded completely: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved, because schemes that were not loaded would be switched off. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scheme database cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is using the scheme database.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scheme database or its folder is write-protected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scheme database is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scheme database was moved or replaced while the program was running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the schemes have not been loaded yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an event source holds a character that cannot be stored.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the scheme database reported an error.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the other program, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the rights on the database folder, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free some space, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was left as it is. Restore a copy of it, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start this program again; if it happens again, see the log file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes are still here. Close the other program, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes are still here. Check the rights on the database folder, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes are still here. Free some space, then save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes are still here. Put the file back, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore a copy of the file, then start this program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes are still here. Save again; if it happens again, see the log file.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>%1, line %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file must hold one object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the entries of a list must be objects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 0 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be true or false</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the id %1 already stands on line %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is not valid Unicode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; stands twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown field &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the number %1 of kind %2 already stands on line %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the group %1 does not exist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something follows after the end of the site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name of a field is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a colon is missing after the name of a field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a comma or a closing brace is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a comma or a closing bracket is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>an escape in a text is not valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a closing quotation mark is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a text is not valid UTF-8 or holds a control character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number is not valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this is not valid JSON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the group %1 lies inside itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>groups lie within groups more than %1 deep</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SiteSession</name>
    <message>
        <source>%1 was changed by somebody else and is left as it is; the removal holds until the client ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserRoles</name>
    <message>
        <source>Administrator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operator</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VantaComponent::GroupTreeCtrl</name>
    <message>
        <source>Remove device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the site? Its alarm schemes go with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No device matches &quot;%1&quot;; clear the search to see all devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site has no device that can be chosen here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site has no devices; add one to see it here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VantaModel::GroupTreeModel</name>
    <message>
        <source>Number %1, id %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id %1, switched off in the configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id %1, offline: it can be configured but does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Id %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not available</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
