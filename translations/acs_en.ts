<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ACSEventConfigUI::CACSEventConfigWidget</name>
    <message>
        <source>EVENT_CFG-MODULE</source>
        <translation>Alarm Schemes</translation>
    </message>
    <message>
        <source>alarm cfg details</source>
        <translation>What happens on every event of every door and alarm input</translation>
    </message>
</context>
<context>
    <name>ACSEventCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>Copy to</translation>
    </message>
</context>
<context>
    <name>ACSEventNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation>Alarm Sound:</translation>
    </message>
    <message>
        <source>Alarm Sound</source>
        <translation>Alarm Sound</translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation>Send Mail:</translation>
    </message>
    <message>
        <source>Send Mail</source>
        <translation>Send Mail</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>Prompt</translation>
    </message>
    <message>
        <source>The SMTP setting is not enabled. Do you want to edit it right now?</source>
        <translation>The SMTP setting is not enabled. Do you want to edit it right now?</translation>
    </message>
    <message>
        <source>You do not have system config right.</source>
        <translation>You do not have system config right.</translation>
    </message>
</context>
<context>
    <name>ACSEventSchemeEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Alarm Event</source>
        <translation>Alarm Event</translation>
    </message>
    <message>
        <source>Abnormal Event</source>
        <translation>Abnormal Event</translation>
    </message>
    <message>
        <source>Normal Event</source>
        <translation>Normal Event</translation>
    </message>
    <message>
        <source>External Event</source>
        <translation>External Event</translation>
    </message>
    <message>
        <source>Alarm inputs</source>
        <translation>Alarm inputs</translation>
    </message>
    <message>
        <source>Alarm scheme on</source>
        <translation>Alarm scheme on</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>Notify</translation>
    </message>
    <message>
        <source>Alarm Out</source>
        <translation>Alarm Out</translation>
    </message>
    <message>
        <source>Defence Time</source>
        <translation>Defence Time</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>Copy to</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>No event selected</source>
        <translation>No event selected</translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation>alarm scheme on</translation>
    </message>
</context>
<context>
    <name>ClientApplication</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>The picture %1 cannot be written: %2</translation>
    </message>
    <message>
        <source>The data directory %1 cannot be made.</source>
        <translation>The data directory %1 cannot be made.</translation>
    </message>
    <message>
        <source>Site file %1</source>
        <translation>Site file %1</translation>
    </message>
</context>
<context>
    <name>ClientOptionParser</name>
    <message>
        <source>Keep settings, site and databases in this directory.</source>
        <translation>Keep settings, site and databases in this directory.</translation>
    </message>
    <message>
        <source>Read the site from this file instead of the data directory.</source>
        <translation>Read the site from this file instead of the data directory.</translation>
    </message>
    <message>
        <source>Work as administrator or operator.</source>
        <translation>Work as administrator or operator.</translation>
    </message>
    <message>
        <source>Show all texts in this language.</source>
        <translation>Show all texts in this language.</translation>
    </message>
    <message>
        <source>Use the dark or the light theme.</source>
        <translation>Use the dark or the light theme.</translation>
    </message>
    <message>
        <source>Open the page of this module at the start.</source>
        <translation>Open the page of this module at the start.</translation>
    </message>
    <message>
        <source>Draw the window into this PNG file once everything is shown, and end.</source>
        <translation>Draw the window into this PNG file once everything is shown, and end.</translation>
    </message>
    <message>
        <source>Print this help and end.</source>
        <translation>Print this help and end.</translation>
    </message>
    <message>
        <source>Print the version and end.</source>
        <translation>Print the version and end.</translation>
    </message>
    <message>
        <source>Client for configuring the alarm schemes of a site.</source>
        <translation>Client for configuring the alarm schemes of a site.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Unexpected argument &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>The option --%1 needs a value.</translation>
    </message>
    <message>
        <source>The option --%1 is given more than once.</source>
        <translation>The option --%1 is given more than once.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for --%2; use one of: %3.</source>
        <translation>&quot;%1&quot; is no value for --%2; use one of: %3.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: acs-scheme &lt;command&gt; [options]</source>
        <translation>Usage: acs-scheme &lt;command&gt; [options]</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>Commands:</translation>
    </message>
    <message>
        <source>&quot;acs-scheme &lt;command&gt; --help&quot; lists a command&apos;s options.</source>
        <translation>&quot;acs-scheme &lt;command&gt; --help&quot; lists a command&apos;s options.</translation>
    </message>
    <message>
        <source>No command given.</source>
        <translation>No command given.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unknown command &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>The output could not be written.</translation>
    </message>
</context>
<context>
    <name>GroupTreeCtrl</name>
    <message>
        <source>Search devices</source>
        <translation>Search devices</translation>
    </message>
    <message>
        <source>Device tree</source>
        <translation>Device tree</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Modules</source>
        <translation>Modules</translation>
    </message>
    <message>
        <source>No module is loaded; put a module file into the &quot;modules&quot; folder beside the program and start again.</source>
        <translation>No module is loaded; put a module file into the &quot;modules&quot; folder beside the program and start again.</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXCustomDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXDialogTitleBar</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXMessageBox</name>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>MailCheck</name>
    <message>
        <source>Enter a mail server, or switch mail off.</source>
        <translation>Enter a mail server, or switch mail off.</translation>
    </message>
    <message>
        <source>The server is missing.</source>
        <translation>The server is missing.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no host name and no address.</source>
        <translation>&quot;%1&quot; is no host name and no address.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>The port must be from 1 to 65535.</translation>
    </message>
    <message>
        <source>The user name is too long or holds control characters.</source>
        <translation>The user name is too long or holds control characters.</translation>
    </message>
    <message>
        <source>The sender must be one mail address, like guard@example.com.</source>
        <translation>The sender must be one mail address, like guard@example.com.</translation>
    </message>
</context>
<context>
    <name>MailSettingsDialog</name>
    <message>
        <source>Send &amp;mail when a scheme asks for it</source>
        <translation>Send &amp;mail when a scheme asks for it</translation>
    </message>
    <message>
        <source>Mail &amp;servers</source>
        <translation>Mail &amp;servers</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>S&amp;erver:</source>
        <translation>S&amp;erver:</translation>
    </message>
    <message>
        <source>mail.example.com</source>
        <translation>mail.example.com</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;User:</translation>
    </message>
    <message>
        <source>empty: no authentication</source>
        <translation>empty: no authentication</translation>
    </message>
    <message>
        <source>Se&amp;nder:</source>
        <translation>Se&amp;nder:</translation>
    </message>
    <message>
        <source>guard@example.com</source>
        <translation>guard@example.com</translation>
    </message>
    <message>
        <source>Mail settings</source>
        <translation>Mail settings</translation>
    </message>
    <message>
        <source>New server</source>
        <translation>New server</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Theme</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation>&amp;Close tab</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Mail…</source>
        <translation>&amp;Mail…</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dark</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Light</translation>
    </message>
    <message>
        <source>Open &amp;data directory</source>
        <translation>Open &amp;data directory</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Module %1: %2</source>
        <translation>Module %1: %2</translation>
    </message>
    <message>
        <source>There is no module &quot;%1&quot;.</source>
        <translation>There is no module &quot;%1&quot;.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n device(s)</source>
        <translation>
            <numerusform>%1: %n device</numerusform>
            <numerusform>%1: %n devices</numerusform>
        </translation>
    </message>
    <message>
        <source>ACS Client</source>
        <translation>ACS Client</translation>
    </message>
    <message>
        <source>%1 - ACS Client</source>
        <translation>%1 - ACS Client</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>The language changes at the next start.</translation>
    </message>
    <message>
        <source>The theme changes at the next start.</source>
        <translation>The theme changes at the next start.</translation>
    </message>
    <message>
        <source>About ACS Client</source>
        <translation>About ACS Client</translation>
    </message>
    <message>
        <source>ACS Client %1
Configures the alarm schemes of an access-control site.

Data directory: %2</source>
        <translation>ACS Client %1
Configures the alarm schemes of an access-control site.

Data directory: %2</translation>
    </message>
    <message>
        <source>The data directory is %1</source>
        <translation>The data directory is %1</translation>
    </message>
    <message>
        <source>No event is selected.</source>
        <translation>No event is selected.</translation>
    </message>
</context>
<context>
    <name>MakeSiteCommand</name>
    <message>
        <source>Writes the site file of a made-up site.</source>
        <translation>Writes the site file of a made-up site.</translation>
    </message>
    <message>
        <source>Number of doors, 1 to %1.</source>
        <translation>Number of doors, 1 to %1.</translation>
    </message>
    <message>
        <source>Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site.</source>
        <translation>Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site.</translation>
    </message>
    <message>
        <source>File to write; without it the site goes to the standard output.</source>
        <translation>File to write; without it the site goes to the standard output.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Shows this help.</translation>
    </message>
    <message>
        <source>Usage: %1 --doors N [--seed S] [--output FILE]</source>
        <translation>Usage: %1 --doors N [--seed S] [--output FILE]</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Unexpected argument &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--doors is missing.</source>
        <translation>--doors is missing.</translation>
    </message>
    <message>
        <source>--doors takes a whole number from 1 to %1.</source>
        <translation>--doors takes a whole number from 1 to %1.</translation>
    </message>
    <message>
        <source>--seed takes a whole number from 0 to 4294967295.</source>
        <translation>--seed takes a whole number from 0 to 4294967295.</translation>
    </message>
    <message>
        <source>--output takes the name of a file.</source>
        <translation>--output takes the name of a file.</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>the module key &quot;%1&quot; is taken by %2</source>
        <translation>the module key &quot;%1&quot; is taken by %2</translation>
    </message>
    <message>
        <source>the module gives no page</source>
        <translation>the module gives no page</translation>
    </message>
    <message>
        <source>the module failed: %1</source>
        <translation>the module failed: %1</translation>
    </message>
    <message>
        <source>the module failed</source>
        <translation>the module failed</translation>
    </message>
    <message>
        <source>the file is no module (%1)</source>
        <translation>the file is no module (%1)</translation>
    </message>
    <message>
        <source>the file cannot be loaded (%1)</source>
        <translation>the file cannot be loaded (%1)</translation>
    </message>
    <message>
        <source>the module gives no root object</source>
        <translation>the module gives no root object</translation>
    </message>
    <message>
        <source>the module does not offer the interface %1</source>
        <translation>the module does not offer the interface %1</translation>
    </message>
    <message>
        <source>the module has no key</source>
        <translation>the module has no key</translation>
    </message>
    <message>
        <source>the module refuses to be loaded</source>
        <translation>the module refuses to be loaded</translation>
    </message>
    <message>
        <source>the module refuses to start</source>
        <translation>the module refuses to start</translation>
    </message>
    <message>
        <source>the module gives no user interface</source>
        <translation>the module gives no user interface</translation>
    </message>
    <message>
        <source>the module describes no page</source>
        <translation>the module describes no page</translation>
    </message>
</context>
<context>
    <name>QAlarmCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>Copy to</translation>
    </message>
</context>
<context>
    <name>QAlarmDayDetailEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Region1</source>
        <translation>Region1</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Region2</source>
        <translation>Region2</translation>
    </message>
    <message>
        <source>Region3</source>
        <translation>Region3</translation>
    </message>
    <message>
        <source>Region4</source>
        <translation>Region4</translation>
    </message>
    <message>
        <source>Region5</source>
        <translation>Region5</translation>
    </message>
    <message>
        <source>Region6</source>
        <translation>Region6</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>Check All</translation>
    </message>
    <message>
        <source>SUN</source>
        <translation>SUN</translation>
    </message>
    <message>
        <source>MON</source>
        <translation>MON</translation>
    </message>
    <message>
        <source>TUE</source>
        <translation>TUE</translation>
    </message>
    <message>
        <source>WED</source>
        <translation>WED</translation>
    </message>
    <message>
        <source>THU</source>
        <translation>THU</translation>
    </message>
    <message>
        <source>FRI</source>
        <translation>FRI</translation>
    </message>
    <message>
        <source>SAT</source>
        <translation>SAT</translation>
    </message>
    <message>
        <source>At %1 row, the end time is earlier than the start time.</source>
        <translation>At %1 row, the end time is earlier than the start time.</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Region %1 begin</source>
        <translation>Region %1 begin</translation>
    </message>
    <message>
        <source>Region %1 end</source>
        <translation>Region %1 end</translation>
    </message>
</context>
<context>
    <name>QAlarmDayEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Time Editor</source>
        <translation>Time Editor</translation>
    </message>
    <message>
        <source>6 regions at most.</source>
        <translation>6 regions at most.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Details for %1</source>
        <translation>Details for %1</translation>
    </message>
</context>
<context>
    <name>QAlarmDefenceTimeEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Week Plan</source>
        <translation>Week Plan</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>Lock all days</source>
        <translation>Lock all days</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation>Lock %1</translation>
    </message>
</context>
<context>
    <name>QAlarmListItem</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation>alarm scheme on</translation>
    </message>
</context>
<context>
    <name>QAlarmListItemView</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
</context>
<context>
    <name>QAlarmNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation>Alarm Sound:</translation>
    </message>
    <message>
        <source>EMap Twinkle:</source>
        <translation>EMap Twinkle:</translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation>Send Mail:</translation>
    </message>
</context>
<context>
    <name>QAlarmOutEditor</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Auto Open:</source>
        <translation>Auto Open:</translation>
    </message>
    <message>
        <source>Last Time:</source>
        <translation>Last Time:</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconds</translation>
    </message>
    <message>
        <source>%1s - 43200s</source>
        <translation>%1s - 43200s</translation>
    </message>
    <message>
        <source>Tick an output in the tree and click it to see its settings here.</source>
        <translation>Tick an output in the tree and click it to see its settings here.</translation>
    </message>
    <message>
        <source>Click the output again to see its settings.</source>
        <translation>Click the output again to see its settings.</translation>
    </message>
</context>
<context>
    <name>QCommon</name>
    <message>
        <source>External Alarm</source>
        <translation>External Alarm</translation>
    </message>
    <message>
        <source>Door Forced Open</source>
        <translation>Door Forced Open</translation>
    </message>
    <message>
        <source>Duress Code Entered</source>
        <translation>Duress Code Entered</translation>
    </message>
    <message>
        <source>Duress Fingerprint</source>
        <translation>Duress Fingerprint</translation>
    </message>
    <message>
        <source>Door Open Too Long</source>
        <translation>Door Open Too Long</translation>
    </message>
    <message>
        <source>Controller Tampered</source>
        <translation>Controller Tampered</translation>
    </message>
    <message>
        <source>Card Reader Tampered</source>
        <translation>Card Reader Tampered</translation>
    </message>
    <message>
        <source>Fire Alarm Input</source>
        <translation>Fire Alarm Input</translation>
    </message>
    <message>
        <source>Emergency Button</source>
        <translation>Emergency Button</translation>
    </message>
    <message>
        <source>Card on Block List</source>
        <translation>Card on Block List</translation>
    </message>
    <message>
        <source>Too Many Attempts</source>
        <translation>Too Many Attempts</translation>
    </message>
    <message>
        <source>Anti-Passback Violation</source>
        <translation>Anti-Passback Violation</translation>
    </message>
    <message>
        <source>Interlock Violation</source>
        <translation>Interlock Violation</translation>
    </message>
    <message>
        <source>Unknown Card</source>
        <translation>Unknown Card</translation>
    </message>
    <message>
        <source>Card Expired</source>
        <translation>Card Expired</translation>
    </message>
    <message>
        <source>Card Not Yet Valid</source>
        <translation>Card Not Yet Valid</translation>
    </message>
    <message>
        <source>No Access at This Door</source>
        <translation>No Access at This Door</translation>
    </message>
    <message>
        <source>Outside Access Hours</source>
        <translation>Outside Access Hours</translation>
    </message>
    <message>
        <source>Wrong PIN</source>
        <translation>Wrong PIN</translation>
    </message>
    <message>
        <source>Unknown Fingerprint</source>
        <translation>Unknown Fingerprint</translation>
    </message>
    <message>
        <source>Unknown Face</source>
        <translation>Unknown Face</translation>
    </message>
    <message>
        <source>First-Card Rule Not Met</source>
        <translation>First-Card Rule Not Met</translation>
    </message>
    <message>
        <source>Second Person Missing</source>
        <translation>Second Person Missing</translation>
    </message>
    <message>
        <source>Door Not Closed</source>
        <translation>Door Not Closed</translation>
    </message>
    <message>
        <source>Door Lock Fault</source>
        <translation>Door Lock Fault</translation>
    </message>
    <message>
        <source>Access by Card</source>
        <translation>Access by Card</translation>
    </message>
    <message>
        <source>Access by Card and PIN</source>
        <translation>Access by Card and PIN</translation>
    </message>
    <message>
        <source>Access by Fingerprint</source>
        <translation>Access by Fingerprint</translation>
    </message>
    <message>
        <source>Access by Face</source>
        <translation>Access by Face</translation>
    </message>
    <message>
        <source>Access by PIN</source>
        <translation>Access by PIN</translation>
    </message>
    <message>
        <source>Access by First Card</source>
        <translation>Access by First Card</translation>
    </message>
    <message>
        <source>Exit Button Pressed</source>
        <translation>Exit Button Pressed</translation>
    </message>
    <message>
        <source>Door Opened</source>
        <translation>Door Opened</translation>
    </message>
    <message>
        <source>Door Closed</source>
        <translation>Door Closed</translation>
    </message>
    <message>
        <source>Opened by Operator</source>
        <translation>Opened by Operator</translation>
    </message>
    <message>
        <source>Opened by Schedule</source>
        <translation>Opened by Schedule</translation>
    </message>
    <message>
        <source>Locked by Schedule</source>
        <translation>Locked by Schedule</translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation>Event %1</translation>
    </message>
</context>
<context>
    <name>SchemeStoreOutcome</name>
    <message>
        <source>%1 %2</source>
        <comment>what happened, what to do next</comment>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) loaded.</source>
        <translation>
            <numerusform>%n scheme loaded.</numerusform>
            <numerusform>%n schemes loaded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) saved.</source>
        <translation>
            <numerusform>%n scheme saved.</numerusform>
            <numerusform>%n schemes saved.</numerusform>
        </translation>
    </message>
    <message>
        <source>The schemes could not be loaded completely: %1</source>
        <translation>The schemes could not be loaded completely: %1</translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation>Nothing was saved: %1</translation>
    </message>
    <message>
        <source>Nothing was saved, because schemes that were not loaded would be switched off. %1</source>
        <translation>Nothing was saved, because schemes that were not loaded would be switched off. %1</translation>
    </message>
    <message>
        <source>the scheme database cannot be opened.</source>
        <translation>the scheme database cannot be opened.</translation>
    </message>
    <message>
        <source>another program is using the scheme database.</source>
        <translation>another program is using the scheme database.</translation>
    </message>
    <message>
        <source>the scheme database or its folder is write-protected.</source>
        <translation>the scheme database or its folder is write-protected.</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>the disk is full.</translation>
    </message>
    <message>
        <source>the scheme database is damaged.</source>
        <translation>the scheme database is damaged.</translation>
    </message>
    <message>
        <source>the scheme database was moved or replaced while the program was running.</source>
        <translation>the scheme database was moved or replaced while the program was running.</translation>
    </message>
    <message>
        <source>the schemes have not been loaded yet.</source>
        <translation>the schemes have not been loaded yet.</translation>
    </message>
    <message>
        <source>an event source holds a character that cannot be stored.</source>
        <translation>an event source holds a character that cannot be stored.</translation>
    </message>
    <message>
        <source>the scheme database reported an error.</source>
        <translation>the scheme database reported an error.</translation>
    </message>
    <message>
        <source>Close the other program, then start this program again.</source>
        <translation>Close the other program, then start this program again.</translation>
    </message>
    <message>
        <source>Check the rights on the database folder, then start this program again.</source>
        <translation>Check the rights on the database folder, then start this program again.</translation>
    </message>
    <message>
        <source>Free some space, then start this program again.</source>
        <translation>Free some space, then start this program again.</translation>
    </message>
    <message>
        <source>The file was left as it is. Restore a copy of it, then start this program again.</source>
        <translation>The file was left as it is. Restore a copy of it, then start this program again.</translation>
    </message>
    <message>
        <source>Start this program again; if it happens again, see the log file.</source>
        <translation>Start this program again; if it happens again, see the log file.</translation>
    </message>
    <message>
        <source>Your changes are still here. Close the other program, then save again.</source>
        <translation>Your changes are still here. Close the other program, then save again.</translation>
    </message>
    <message>
        <source>Your changes are still here. Check the rights on the database folder, then save again.</source>
        <translation>Your changes are still here. Check the rights on the database folder, then save again.</translation>
    </message>
    <message>
        <source>Your changes are still here. Free some space, then save again.</source>
        <translation>Your changes are still here. Free some space, then save again.</translation>
    </message>
    <message>
        <source>Your changes are still here. Put the file back, then save again.</source>
        <translation>Your changes are still here. Put the file back, then save again.</translation>
    </message>
    <message>
        <source>Restore a copy of the file, then start this program again.</source>
        <translation>Restore a copy of the file, then start this program again.</translation>
    </message>
    <message>
        <source>Your changes are still here. Save again; if it happens again, see the log file.</source>
        <translation>Your changes are still here. Save again; if it happens again, see the log file.</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, line %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>the file does not exist</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>this is not a file</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>the file is larger than %1 MB</translation>
    </message>
    <message>
        <source>the file must hold one object</source>
        <translation>the file must hold one object</translation>
    </message>
    <message>
        <source>the entries of a list must be objects</source>
        <translation>the entries of a list must be objects</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 1 to %2</source>
        <translation>the field &quot;%1&quot; must be a whole number from 1 to %2</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 0 to %2</source>
        <translation>the field &quot;%1&quot; must be a whole number from 0 to %2</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be true or false</source>
        <translation>the field &quot;%1&quot; must be true or false</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a text</source>
        <translation>the field &quot;%1&quot; must be a text</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a list</source>
        <translation>the field &quot;%1&quot; must be a list</translation>
    </message>
    <message>
        <source>the id %1 already stands on line %2</source>
        <translation>the id %1 already stands on line %2</translation>
    </message>
    <message>
        <source>the name is not valid Unicode</source>
        <translation>the name is not valid Unicode</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; stands twice</source>
        <translation>the field &quot;%1&quot; stands twice</translation>
    </message>
    <message>
        <source>unknown field &quot;%1&quot;</source>
        <translation>unknown field &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation>the field &quot;%1&quot; is missing</translation>
    </message>
    <message>
        <source>the number %1 of kind %2 already stands on line %3</source>
        <translation>the number %1 of kind %2 already stands on line %3</translation>
    </message>
    <message>
        <source>the group %1 does not exist</source>
        <translation>the group %1 does not exist</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>something follows after the end of the site</source>
        <translation>something follows after the end of the site</translation>
    </message>
    <message>
        <source>the name of a field is missing</source>
        <translation>the name of a field is missing</translation>
    </message>
    <message>
        <source>a colon is missing after the name of a field</source>
        <translation>a colon is missing after the name of a field</translation>
    </message>
    <message>
        <source>a comma or a closing brace is missing</source>
        <translation>a comma or a closing brace is missing</translation>
    </message>
    <message>
        <source>a comma or a closing bracket is missing</source>
        <translation>a comma or a closing bracket is missing</translation>
    </message>
    <message>
        <source>an escape in a text is not valid</source>
        <translation>an escape in a text is not valid</translation>
    </message>
    <message>
        <source>a closing quotation mark is missing</source>
        <translation>a closing quotation mark is missing</translation>
    </message>
    <message>
        <source>a text is not valid UTF-8 or holds a control character</source>
        <translation>a text is not valid UTF-8 or holds a control character</translation>
    </message>
    <message>
        <source>a number is not valid</source>
        <translation>a number is not valid</translation>
    </message>
    <message>
        <source>this is not valid JSON</source>
        <translation>this is not valid JSON</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>the name is empty</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>the name is longer than %1 characters</translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation>the name holds a control character</translation>
    </message>
    <message>
        <source>the group %1 lies inside itself</source>
        <translation>the group %1 lies inside itself</translation>
    </message>
    <message>
        <source>groups lie within groups more than %1 deep</source>
        <translation>groups lie within groups more than %1 deep</translation>
    </message>
</context>
<context>
    <name>SiteSession</name>
    <message>
        <source>%1 was changed by somebody else and is left as it is; the removal holds until the client ends.</source>
        <translation>%1 was changed by somebody else and is left as it is; the removal holds until the client ends.</translation>
    </message>
</context>
<context>
    <name>UserRoles</name>
    <message>
        <source>Administrator</source>
        <translation>Administrator</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operator</translation>
    </message>
</context>
<context>
    <name>VantaComponent::GroupTreeCtrl</name>
    <message>
        <source>Remove device</source>
        <translation>Remove device</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the site? Its alarm schemes go with it.</source>
        <translation>Remove &quot;%1&quot; from the site? Its alarm schemes go with it.</translation>
    </message>
    <message>
        <source>No device matches &quot;%1&quot;; clear the search to see all devices.</source>
        <translation>No device matches &quot;%1&quot;; clear the search to see all devices.</translation>
    </message>
    <message>
        <source>The site has no device that can be chosen here.</source>
        <translation>The site has no device that can be chosen here.</translation>
    </message>
    <message>
        <source>The site has no devices; add one to see it here.</source>
        <translation>The site has no devices; add one to see it here.</translation>
    </message>
</context>
<context>
    <name>VantaModel::GroupTreeModel</name>
    <message>
        <source>Number %1, id %2</source>
        <translation>Number %1, id %2</translation>
    </message>
    <message>
        <source>Id %1, switched off in the configuration</source>
        <translation>Id %1, switched off in the configuration</translation>
    </message>
    <message>
        <source>Id %1, offline: it can be configured but does not answer</source>
        <translation>Id %1, offline: it can be configured but does not answer</translation>
    </message>
    <message>
        <source>Id %1</source>
        <translation>Id %1</translation>
    </message>
    <message>
        <source>%1, not available</source>
        <translation>%1, not available</translation>
    </message>
</context>
</TS>
