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
    <message numerus="yes">
        <source>Copy to %Ln Door(s)</source>
        <translation>
            <numerusform>Copy to %Ln Door</numerusform>
            <numerusform>Copy to %Ln Doors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Alarm Input(s)</source>
        <translation>
            <numerusform>Copy to %Ln Alarm Input</numerusform>
            <numerusform>Copy to %Ln Alarm Inputs</numerusform>
        </translation>
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
    <message>
        <source>Select a door or a device on the left to edit its alarm schemes.</source>
        <translation>Select a door or a device on the left to edit its alarm schemes.</translation>
    </message>
    <message>
        <source>Select an event to edit its alarm scheme.</source>
        <translation>Select an event to edit its alarm scheme.</translation>
    </message>
    <message>
        <source>This device has no alarm inputs.</source>
        <translation>This device has no alarm inputs.</translation>
    </message>
    <message>
        <source>Select an alarm input to edit its alarm scheme.</source>
        <translation>Select an alarm input to edit its alarm scheme.</translation>
    </message>
    <message>
        <source>This cannot have alarm schemes: it is disabled or of another type.</source>
        <translation>This cannot have alarm schemes: it is disabled or of another type.</translation>
    </message>
</context>
<context>
    <name>AlarmSchemeReadOutcome</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>There is no file &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file.</source>
        <translation>&quot;%1&quot; is no file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened for reading. Check the rights on it and on its folder.</source>
        <translation>&quot;%1&quot; cannot be opened for reading. Check the rights on it and on its folder.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no database.</source>
        <translation>&quot;%1&quot; is no database.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no alarm schemes.</source>
        <translation>&quot;%1&quot; holds no alarm schemes.</translation>
    </message>
    <message>
        <source>A write into &quot;%1&quot; was cut off and has left a journal beside it, which only a program that may write can take back. Start the client once, then try again.</source>
        <translation>A write into &quot;%1&quot; was cut off and has left a journal beside it, which only a program that may write can take back. Start the client once, then try again.</translation>
    </message>
    <message>
        <source>Another program is using &quot;%1&quot;. Try again when it has finished.</source>
        <translation>Another program is using &quot;%1&quot;. Try again when it has finished.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged. Restore a copy of it.</source>
        <translation>&quot;%1&quot; is damaged. Restore a copy of it.</translation>
    </message>
    <message>
        <source>The reading of &quot;%1&quot; was stopped.</source>
        <translation>The reading of &quot;%1&quot; was stopped.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2</source>
        <translation>&quot;%1&quot; could not be read: %2</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Copies the database.</source>
        <translation>Copies the database.</translation>
    </message>
    <message>
        <source>[--output FILE] [options]</source>
        <translation>[--output FILE] [options]</translation>
    </message>
    <message>
        <source>File to make; without it the copy goes to the folder &quot;backups&quot; beside the database, where the last %1 are kept.</source>
        <translation>File to make; without it the copy goes to the folder &quot;backups&quot; beside the database, where the last %1 are kept.</translation>
    </message>
    <message>
        <source>There is a file &quot;%1&quot; already.</source>
        <translation>There is a file &quot;%1&quot; already.</translation>
    </message>
    <message>
        <source>The backup could not be made: %1</source>
        <translation>The backup could not be made: %1</translation>
    </message>
    <message>
        <source>Schemes: %1, copied to %2</source>
        <translation>Schemes: %1, copied to %2</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>Finds what cannot be meant: schemes that never act, links to nothing, impossible times.</source>
        <translation>Finds what cannot be meant: schemes that never act, links to nothing, impossible times.</translation>
    </message>
    <message>
        <source>[--silence FILE] [options]</source>
        <translation>[--silence FILE] [options]</translation>
    </message>
    <message>
        <source>Leaves out the findings whose codes stand in this file.</source>
        <translation>Leaves out the findings whose codes stand in this file.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Checking</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>severity, code, place</comment>
        <translation>%1 %2: %3</translation>
    </message>
    <message>
        <source>No site file: sources, links, doors and devices were not looked at.</source>
        <translation>No site file: sources, links, doors and devices were not looked at.</translation>
    </message>
    <message>
        <source>Schemes: %1, errors: %2, warnings: %3, information: %4, silenced: %5</source>
        <translation>Schemes: %1, errors: %2, warnings: %3, information: %4, silenced: %5</translation>
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
    <message>
        <source>Unsaved changes cannot be kept against a crash: %1.</source>
        <translation>Unsaved changes cannot be kept against a crash: %1.</translation>
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
    <name>CommandInput</name>
    <message>
        <source>Reading the schemes</source>
        <translation>Reading the schemes</translation>
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
    <name>CommandOptions</name>
    <message>
        <source>Shows this help.</source>
        <translation>Shows this help.</translation>
    </message>
    <message>
        <source>How the result is written; text unless it is said here.</source>
        <translation>How the result is written; text unless it is said here.</translation>
    </message>
    <message>
        <source>Works on the data of this directory instead of the client&apos;s own.</source>
        <translation>Works on the data of this directory instead of the client&apos;s own.</translation>
    </message>
    <message>
        <source>Works on this database file.</source>
        <translation>Works on this database file.</translation>
    </message>
    <message>
        <source>Takes devices and names from this site file.</source>
        <translation>Takes devices and names from this site file.</translation>
    </message>
    <message>
        <source>Usage: %1 %2</source>
        <translation>Usage: %1 %2</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Unexpected argument &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>An argument is missing; the usage is &quot;%1&quot;.</source>
        <translation>An argument is missing; the usage is &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 needs a value.</translation>
    </message>
    <message>
        <source>--format takes &quot;text&quot; or &quot;json&quot;.</source>
        <translation>--format takes &quot;text&quot; or &quot;json&quot;.</translation>
    </message>
    <message>
        <source>--database and --data-dir exclude each other.</source>
        <translation>--database and --data-dir exclude each other.</translation>
    </message>
</context>
<context>
    <name>CoveragePage</name>
    <message>
        <source>Coverage</source>
        <translation>Coverage</translation>
    </message>
    <message>
        <source>When is the site watched, and where are the gaps?</source>
        <translation>When is the site watched, and where are the gaps?</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Device</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>&amp;Category</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Category</translation>
    </message>
    <message>
        <source>Armed schemes over the week</source>
        <translation>Armed schemes over the week</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>All devices</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>All categories</translation>
    </message>
    <message>
        <source>No scheme is switched on here; nothing is ever armed.</source>
        <translation>No scheme is switched on here; nothing is ever armed.</translation>
    </message>
    <message>
        <source>Nothing to complain of.</source>
        <translation>Nothing to complain of.</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2, notes: %3</source>
        <translation>Errors: %1, warnings: %2, notes: %3</translation>
    </message>
    <message>
        <source>Looking through the schemes…</source>
        <translation>Looking through the schemes…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) switched on. The stronger the green of a half hour, the more of them are armed.</source>
        <translation>
            <numerusform>%Ln scheme switched on. The stronger the green of a half hour, the more of them are armed.</numerusform>
            <numerusform>%Ln schemes switched on. The stronger the green of a half hour, the more of them are armed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiffCommand</name>
    <message>
        <source>Tells what differs between two databases, backups or exports.</source>
        <translation>Tells what differs between two databases, backups or exports.</translation>
    </message>
    <message>
        <source>A B [options]</source>
        <translation>A B [options]</translation>
    </message>
    <message>
        <source>Reading the first file</source>
        <translation>Reading the first file</translation>
    </message>
    <message>
        <source>Reading the second file</source>
        <translation>Reading the second file</translation>
    </message>
    <message>
        <source>Comparing the schemes</source>
        <translation>Comparing the schemes</translation>
    </message>
</context>
<context>
    <name>DifferenceText</name>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <comment>field, before, after</comment>
        <translation>%1: %2 -&gt; %3</translation>
    </message>
    <message>
        <source>added    %1</source>
        <translation>added    %1</translation>
    </message>
    <message>
        <source>removed  %1</source>
        <translation>removed  %1</translation>
    </message>
    <message>
        <source>changed  %1</source>
        <translation>changed  %1</translation>
    </message>
    <message>
        <source>Added: %1, removed: %2, changed: %3, equal: %4</source>
        <translation>Added: %1, removed: %2, changed: %3, equal: %4</translation>
    </message>
</context>
<context>
    <name>DraftFile</name>
    <message>
        <source>it is no draft</source>
        <translation>it is no draft</translation>
    </message>
    <message>
        <source>another version of the program has written it</source>
        <translation>another version of the program has written it</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>it is damaged</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>there is no place for it in %1</source>
        <translation>there is no place for it in %1</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>Unsaved changes were found</source>
        <translation>Unsaved changes were found</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>the page cannot use it</source>
        <translation>the page cannot use it</translation>
    </message>
    <message>
        <source>The changes are stored already; there was nothing to restore.</source>
        <translation>The changes are stored already; there was nothing to restore.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) restored; they are not saved yet.</source>
        <translation>
            <numerusform>%Ln scheme restored; it is not saved yet.</numerusform>
            <numerusform>%Ln schemes restored; they are not saved yet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved changes of an earlier run cannot be restored: %1. The file is kept as %2.</source>
        <translation>Unsaved changes of an earlier run cannot be restored: %1. The file is kept as %2.</translation>
    </message>
    <message>
        <source>%1: the program ended before changes were saved. They were kept on %2.</source>
        <translation>%1: the program ended before changes were saved. They were kept on %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1: the program ended before changes of %Ln scheme(s) were saved. They were kept on %2.</source>
        <translation>
            <numerusform>%1: the program ended before changes of %Ln scheme were saved. They were kept on %2.</numerusform>
            <numerusform>%1: the program ended before changes of %Ln schemes were saved. They were kept on %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore them? Nothing is saved by that. &quot;Later&quot; asks again at the next start.</source>
        <translation>Restore them? Nothing is saved by that. &quot;Later&quot; asks again at the next start.</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>typing</source>
        <translation>typing</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Redo %1</translation>
    </message>
</context>
<context>
    <name>EventCategories</name>
    <message>
        <source>Alarm events</source>
        <translation>Alarm events</translation>
    </message>
    <message>
        <source>Abnormal events</source>
        <translation>Abnormal events</translation>
    </message>
    <message>
        <source>Normal events</source>
        <translation>Normal events</translation>
    </message>
    <message>
        <source>Alarm inputs</source>
        <translation>Alarm inputs</translation>
    </message>
    <message>
        <source>Unknown events</source>
        <translation>Unknown events</translation>
    </message>
</context>
<context>
    <name>ExplainCommand</name>
    <message>
        <source>Tells what would happen if an event came at a time.</source>
        <translation>Tells what would happen if an event came at a time.</translation>
    </message>
    <message>
        <source>--source S --event TYPE --at TIME [--zone ID] [options]</source>
        <translation>--source S --event TYPE --at TIME [--zone ID] [options]</translation>
    </message>
    <message>
        <source>The time by the wall clock, like 2026-11-23T08:30.</source>
        <translation>The time by the wall clock, like 2026-11-23T08:30.</translation>
    </message>
    <message>
        <source>The time zone of the clock, like Europe/Rome; the computer&apos;s unless it is said here.</source>
        <translation>The time zone of the clock, like Europe/Rome; the computer&apos;s unless it is said here.</translation>
    </message>
    <message>
        <source>--%1 is missing.</source>
        <translation>--%1 is missing.</translation>
    </message>
    <message>
        <source>The clock shows this time twice on that day; this is about the first. An offset, like &quot;+01:00&quot; behind the time, tells them apart.</source>
        <translation>The clock shows this time twice on that day; this is about the first. An offset, like &quot;+01:00&quot; behind the time, tells them apart.</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>source and event, time</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A device has one scheme for this event, whichever door it comes from.</source>
        <translation>A device has one scheme for this event, whichever door it comes from.</translation>
    </message>
    <message>
        <source>It does nothing.</source>
        <translation>It does nothing.</translation>
    </message>
    <message>
        <source>It does this:</source>
        <translation>It does this:</translation>
    </message>
    <message>
        <source>The next change is at %1.</source>
        <translation>The next change is at %1.</translation>
    </message>
    <message>
        <source>Nothing changes with time.</source>
        <translation>Nothing changes with time.</translation>
    </message>
</context>
<context>
    <name>ExplainPage</name>
    <message>
        <source>Explain</source>
        <translation>Explain</translation>
    </message>
    <message>
        <source>What would happen if this event came at that time?</source>
        <translation>What would happen if this event came at that time?</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Source</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>&amp;Event</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>&amp;Time</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Now</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>Armed time of the day</source>
        <translation>Armed time of the day</translation>
    </message>
    <message>
        <source>&amp;Reactions</source>
        <translation>&amp;Reactions</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>Reactions</translation>
    </message>
    <message>
        <source>Device/door or device/alarm input</source>
        <translation>Device/door or device/alarm input</translation>
    </message>
    <message>
        <source>The site has no devices. Open a site with devices first.</source>
        <translation>The site has no devices. Open a site with devices first.</translation>
    </message>
    <message>
        <source>Pick the source that the event comes from.</source>
        <translation>Pick the source that the event comes from.</translation>
    </message>
    <message>
        <source>Pick the event.</source>
        <translation>Pick the event.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>day, armed time</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>A device has one scheme for this event, whichever door it comes from.</source>
        <translation>A device has one scheme for this event, whichever door it comes from.</translation>
    </message>
    <message>
        <source>The next change is at %1.</source>
        <translation>The next change is at %1.</translation>
    </message>
    <message>
        <source>Nothing changes with time.</source>
        <translation>Nothing changes with time.</translation>
    </message>
    <message>
        <source>&amp;Reactions while it is armed</source>
        <translation>&amp;Reactions while it is armed</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Writes the schemes as a JSON text.</source>
        <translation>Writes the schemes as a JSON text.</translation>
    </message>
    <message>
        <source>[--output FILE] [options]</source>
        <translation>[--output FILE] [options]</translation>
    </message>
    <message>
        <source>File to write; without it the text goes to the standard output.</source>
        <translation>File to write; without it the text goes to the standard output.</translation>
    </message>
    <message>
        <source>Writing the schemes</source>
        <translation>Writing the schemes</translation>
    </message>
    <message>
        <source>Schemes written: %1</source>
        <translation>Schemes written: %1</translation>
    </message>
</context>
<context>
    <name>ExportSiteCommand</name>
    <message>
        <source>Writes the client&apos;s site as a table or a site file.</source>
        <translation>Writes the client&apos;s site as a table or a site file.</translation>
    </message>
    <message>
        <source>[--format csv|json] [--output FILE] [--data-dir DIR | --site FILE]</source>
        <translation>[--format csv|json] [--output FILE] [--data-dir DIR | --site FILE]</translation>
    </message>
    <message>
        <source>The form; without it the one that goes with the file&apos;s name, or csv.</source>
        <translation>The form; without it the one that goes with the file&apos;s name, or csv.</translation>
    </message>
    <message>
        <source>File to write; without it the site goes to the standard output.</source>
        <translation>File to write; without it the site goes to the standard output.</translation>
    </message>
    <message>
        <source>--format takes &quot;csv&quot; or &quot;json&quot;.</source>
        <translation>--format takes &quot;csv&quot; or &quot;json&quot;.</translation>
    </message>
    <message>
        <source>--output names the site file itself.</source>
        <translation>--output names the site file itself.</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>source, event</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>place, day of the week</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The scheme is switched on but never armed.</source>
        <translation>The scheme is switched on but never armed.</translation>
    </message>
    <message>
        <source>The scheme is armed but does nothing.</source>
        <translation>The scheme is armed but does nothing.</translation>
    </message>
    <message>
        <source>The site has no such event source.</source>
        <translation>The site has no such event source.</translation>
    </message>
    <message>
        <source>The linked output %1 is not part of the site.</source>
        <translation>The linked output %1 is not part of the site.</translation>
    </message>
    <message>
        <source>The linked door %1 is not part of the site.</source>
        <translation>The linked door %1 is not part of the site.</translation>
    </message>
    <message>
        <source>The linked video channel %1 is not part of the site.</source>
        <translation>The linked video channel %1 is not part of the site.</translation>
    </message>
    <message>
        <source>The output %1 stays on for %2 s, which is not within 5 to 43200 s.</source>
        <translation>The output %1 stays on for %2 s, which is not within 5 to 43200 s.</translation>
    </message>
    <message>
        <source>The day has %1 time regions; six is the most.</source>
        <translation>The day has %1 time regions; six is the most.</translation>
    </message>
    <message>
        <source>Time regions of the day overlap.</source>
        <translation>Time regions of the day overlap.</translation>
    </message>
    <message>
        <source>Time regions of the day touch each other.</source>
        <translation>Time regions of the day touch each other.</translation>
    </message>
    <message>
        <source>A time region of the day ends before it begins or lies outside the day.</source>
        <translation>A time region of the day ends before it begins or lies outside the day.</translation>
    </message>
    <message>
        <source>No scheme of this door is switched on.</source>
        <translation>No scheme of this door is switched on.</translation>
    </message>
    <message>
        <source>The scheme waits for events of a device that is offline.</source>
        <translation>The scheme waits for events of a device that is offline.</translation>
    </message>
    <message>
        <source>Paint the hours in which it is to be armed, or switch it off.</source>
        <translation>Paint the hours in which it is to be armed, or switch it off.</translation>
    </message>
    <message>
        <source>Choose a sound, a mail or an output, or switch the scheme off.</source>
        <translation>Choose a sound, a mail or an output, or switch the scheme off.</translation>
    </message>
    <message>
        <source>Delete the scheme, or bring the device back into the site.</source>
        <translation>Delete the scheme, or bring the device back into the site.</translation>
    </message>
    <message>
        <source>Remove the link, or bring the device back into the site.</source>
        <translation>Remove the link, or bring the device back into the site.</translation>
    </message>
    <message>
        <source>Set a time from 5 to 43200 s.</source>
        <translation>Set a time from 5 to 43200 s.</translation>
    </message>
    <message>
        <source>Open the day&apos;s details and confirm them; regions that belong together are joined.</source>
        <translation>Open the day&apos;s details and confirm them; regions that belong together are joined.</translation>
    </message>
    <message>
        <source>Set the day&apos;s hours anew.</source>
        <translation>Set the day&apos;s hours anew.</translation>
    </message>
    <message>
        <source>Switch on a scheme for the door if its events matter.</source>
        <translation>Switch on a scheme for the door if its events matter.</translation>
    </message>
    <message>
        <source>Look after the device; until it answers, nothing is reported.</source>
        <translation>Look after the device; until it answers, nothing is reported.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>Severity</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Where</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>What to do</translation>
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
    <name>HistoryCommand</name>
    <message>
        <source>Tells who changed what and when.</source>
        <translation>Tells who changed what and when.</translation>
    </message>
    <message>
        <source>[STEP] [--limit N] [options]</source>
        <translation>[STEP] [--limit N] [options]</translation>
    </message>
    <message>
        <source>Only so many of the newest steps.</source>
        <translation>Only so many of the newest steps.</translation>
    </message>
    <message>
        <source>--limit takes a whole number from 1.</source>
        <translation>--limit takes a whole number from 1.</translation>
    </message>
    <message>
        <source>There is no step %1.</source>
        <translation>There is no step %1.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>When</source>
        <translation>When</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>Who</translation>
    </message>
    <message>
        <source>What</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>Schemes</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>What was changed, when and by whom?</source>
        <translation>What was changed, when and by whom?</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>Makes the schemes of this step what they were before it</source>
        <translation>Makes the schemes of this step what they were before it</translation>
    </message>
    <message>
        <source>Changed schemes</source>
        <translation>Changed schemes</translation>
    </message>
    <message>
        <source>Pick a step to see what it has changed.</source>
        <translation>Pick a step to see what it has changed.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) changed:</source>
        <translation>
            <numerusform>%Ln scheme changed:</numerusform>
            <numerusform>%Ln schemes changed:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 schemes changed, the first %2 of them:</source>
        <translation>%1 schemes changed, the first %2 of them:</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>deleted</translation>
    </message>
    <message>
        <source>new</source>
        <translation>new</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>scheme, what has changed</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Take a step back</source>
        <translation>Take a step back</translation>
    </message>
    <message numerus="yes">
        <source>Make the %Ln scheme(s) of the step of %1 what they were before it? Schemes that have changed since stay as they are. The pages are loaded anew.</source>
        <translation>
            <numerusform>Make the %Ln scheme of the step of %1 what it was before it? A scheme that has changed since stays as it is. The pages are loaded anew.</numerusform>
            <numerusform>Make the %Ln schemes of the step of %1 what they were before it? Schemes that have changed since stay as they are. The pages are loaded anew.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) were not taken back, because they have changed since:</source>
        <translation>
            <numerusform>%Ln scheme was not taken back, because it has changed since:</numerusform>
            <numerusform>%Ln schemes were not taken back, because they have changed since:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Take back…</source>
        <translation>&amp;Take back…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
</context>
<context>
    <name>HistoryText</name>
    <message>
        <source>&quot;%1&quot; is no number of a step.</source>
        <translation>&quot;%1&quot; is no number of a step.</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>%1  %2  %3, %4, schemes: %5</source>
        <comment>number, time, who, what</comment>
        <translation>%1  %2  %3, %4, schemes: %5</translation>
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
    <message>
        <source>The site has no devices; describe them in %1, or name another file with --site, and start again.</source>
        <translation>The site has no devices; describe them in %1, or name another file with --site, and start again.</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>Brings the schemes of a JSON text into the database.</source>
        <translation>Brings the schemes of a JSON text into the database.</translation>
    </message>
    <message>
        <source>FILE --merge|--replace [--dry-run] [options]</source>
        <translation>FILE --merge|--replace [--dry-run] [options]</translation>
    </message>
    <message>
        <source>The listed schemes replace those of the same source and event, all others stay.</source>
        <translation>The listed schemes replace those of the same source and event, all others stay.</translation>
    </message>
    <message>
        <source>Afterwards there are exactly the listed schemes; all others are deleted.</source>
        <translation>Afterwards there are exactly the listed schemes; all others are deleted.</translation>
    </message>
    <message>
        <source>Changes nothing and tells what would change; without --merge or --replace, what either would.</source>
        <translation>Changes nothing and tells what would change; without --merge or --replace, what either would.</translation>
    </message>
    <message>
        <source>--merge and --replace exclude each other.</source>
        <translation>--merge and --replace exclude each other.</translation>
    </message>
    <message>
        <source>Say whether the other schemes stay, --merge, or are deleted, --replace.</source>
        <translation>Say whether the other schemes stay, --merge, or are deleted, --replace.</translation>
    </message>
    <message>
        <source>With --merge:</source>
        <translation>With --merge:</translation>
    </message>
    <message>
        <source>With --replace:</source>
        <translation>With --replace:</translation>
    </message>
    <message>
        <source>Reading the text</source>
        <translation>Reading the text</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
</context>
<context>
    <name>ImportSiteCommand</name>
    <message>
        <source>Brings the devices of a table or site file into the client&apos;s site.</source>
        <translation>Brings the devices of a table or site file into the client&apos;s site.</translation>
    </message>
    <message>
        <source>FILE [--dry-run] [--data-dir DIR | --site FILE] [options]</source>
        <translation>FILE [--dry-run] [--data-dir DIR | --site FILE] [options]</translation>
    </message>
    <message>
        <source>Changes nothing and tells what would change.</source>
        <translation>Changes nothing and tells what would change.</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) are wrong.</source>
        <translation>
            <numerusform>%n more line is wrong.</numerusform>
            <numerusform>%n more lines are wrong.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>The old site is kept in %1.</source>
        <translation>The old site is kept in %1.</translation>
    </message>
</context>
<context>
    <name>InsightPages</name>
    <message>
        <source>&amp;Explain</source>
        <translation>&amp;Explain</translation>
    </message>
    <message>
        <source>&amp;Coverage</source>
        <translation>&amp;Coverage</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;History</translation>
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
    <name>ListCommand</name>
    <message>
        <source>Lists the schemes.</source>
        <translation>Lists the schemes.</translation>
    </message>
    <message>
        <source>[--source S] [--event TYPE] [--enabled] [options]</source>
        <translation>[--source S] [--event TYPE] [--enabled] [options]</translation>
    </message>
    <message>
        <source>Only the schemes that are switched on.</source>
        <translation>Only the schemes that are switched on.</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>Schemes: %1, switched on: %2</source>
        <translation>Schemes: %1, switched on: %2</translation>
    </message>
</context>
<context>
    <name>LoadAnewOffer</name>
    <message>
        <source>Schemes have changed: load anew</source>
        <translation>Schemes have changed: load anew</translation>
    </message>
    <message>
        <source>The open pages show the schemes as they were when they were loaded.</source>
        <translation>The open pages show the schemes as they were when they were loaded.</translation>
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
    <message>
        <source>The password is too long or holds control characters.</source>
        <translation>The password is too long or holds control characters.</translation>
    </message>
    <message>
        <source>Enter the password of the user, or leave the user empty.</source>
        <translation>Enter the password of the user, or leave the user empty.</translation>
    </message>
    <message>
        <source>Enter at least one address that gets the mail.</source>
        <translation>Enter at least one address that gets the mail.</translation>
    </message>
    <message>
        <source>A server takes %1 recipients at most.</source>
        <translation>A server takes %1 recipients at most.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mail address like guard@example.com.</source>
        <translation>&quot;%1&quot; is no mail address like guard@example.com.</translation>
    </message>
    <message>
        <source>The name of the certificate file is too long or holds control characters.</source>
        <translation>The name of the certificate file is too long or holds control characters.</translation>
    </message>
</context>
<context>
    <name>MailOutcome</name>
    <message>
        <source>The server says: %1</source>
        <translation>The server says: %1</translation>
    </message>
    <message>
        <source>%1 has taken the test mail for %2. Look into the mailbox; it can take a minute.</source>
        <translation>%1 has taken the test mail for %2. Look into the mailbox; it can take a minute.</translation>
    </message>
    <message>
        <source>%1 has taken the test mail, but offers no login: user and password were not used.</source>
        <translation>%1 has taken the test mail, but offers no login: user and password were not used.</translation>
    </message>
    <message>
        <source>The test was stopped.</source>
        <translation>The test was stopped.</translation>
    </message>
    <message>
        <source>The address %1 cannot be used. Enter it like guard@example.com.</source>
        <translation>The address %1 cannot be used. Enter it like guard@example.com.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check its name and the network connection.</source>
        <translation>The server &quot;%1&quot; was not found. Check its name and the network connection.</translation>
    </message>
    <message>
        <source>Nothing answers on port %1 of %2. Check server and port; as a rule it is 587 with STARTTLS, 465 with TLS and 25 without encryption. A firewall can be in the way, too.</source>
        <translation>Nothing answers on port %1 of %2. Check server and port; as a rule it is 587 with STARTTLS, 465 with TLS and 25 without encryption. A firewall can be in the way, too.</translation>
    </message>
    <message>
        <source>%1 does not answer on port %2. Check port and encryption; a firewall can be in the way, too.</source>
        <translation>%1 does not answer on port %2. Check port and encryption; a firewall can be in the way, too.</translation>
    </message>
    <message>
        <source>What answers on port %1 of %2 takes no mail. Check server, port and encryption.</source>
        <translation>What answers on port %1 of %2 takes no mail. Check server, port and encryption.</translation>
    </message>
    <message>
        <source>%1 offers no STARTTLS on port %2. Choose TLS with the port that goes with it, 465 as a rule.</source>
        <translation>%1 offers no STARTTLS on port %2. Choose TLS with the port that goes with it, 465 as a rule.</translation>
    </message>
    <message>
        <source>No encrypted connection to port %1 of %2. Check the encryption: TLS goes with port 465 as a rule, STARTTLS with 587 and 25.</source>
        <translation>No encrypted connection to port %1 of %2. Check the encryption: TLS goes with port 465 as a rule, STARTTLS with 587 and 25.</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted, so nothing was sent. Enter the server by the name that its certificate carries, or name the certificate file of your own authority.</source>
        <translation>The certificate of %1 is not trusted, so nothing was sent. Enter the server by the name that its certificate carries, or name the certificate file of your own authority.</translation>
    </message>
    <message>
        <source>The certificate file %1 cannot be used. Choose a file with certificates in the PEM form, or leave the field empty.</source>
        <translation>The certificate file %1 cannot be used. Choose a file with certificates in the PEM form, or leave the field empty.</translation>
    </message>
    <message>
        <source>%1 offers no login that can be used. Many servers offer it with encryption only; choose STARTTLS or TLS, or leave user and password empty.</source>
        <translation>%1 offers no login that can be used. Many servers offer it with encryption only; choose STARTTLS or TLS, or leave user and password empty.</translation>
    </message>
    <message>
        <source>%1 refuses the user &quot;%2&quot;. Check user and password; some services want a password of its own for programs.</source>
        <translation>%1 refuses the user &quot;%2&quot;. Check user and password; some services want a password of its own for programs.</translation>
    </message>
    <message>
        <source>%1 takes no mail from %2. Check the sender; often it must be the address of the user.</source>
        <translation>%1 takes no mail from %2. Check the sender; often it must be the address of the user.</translation>
    </message>
    <message>
        <source>%1 takes no mail for %2. Check the address; mail to other places often needs user and password.</source>
        <translation>%1 takes no mail for %2. Check the address; mail to other places often needs user and password.</translation>
    </message>
    <message>
        <source>%1 refuses the mail itself. Ask the administrator of the mail server.</source>
        <translation>%1 refuses the mail itself. Ask the administrator of the mail server.</translation>
    </message>
    <message>
        <source>The connection to %1 broke off. Check port and encryption, and try again.</source>
        <translation>The connection to %1 broke off. Check port and encryption, and try again.</translation>
    </message>
    <message>
        <source>The test mail could not be sent through %1: %2</source>
        <translation>The test mail could not be sent through %1: %2</translation>
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
    <message>
        <source>Mail servers</source>
        <translation>Mail servers</translation>
    </message>
    <message>
        <source>En&amp;cryption:</source>
        <translation>En&amp;cryption:</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>Without encryption anyone on the way can read the password.</source>
        <translation>Without encryption anyone on the way can read the password.</translation>
    </message>
    <message>
        <source>Recip&amp;ients:</source>
        <translation>Recip&amp;ients:</translation>
    </message>
    <message>
        <source>desk@example.com, chief@example.com</source>
        <translation>desk@example.com, chief@example.com</translation>
    </message>
    <message>
        <source>Certi&amp;ficates:</source>
        <translation>Certi&amp;ficates:</translation>
    </message>
    <message>
        <source>empty: those of the system</source>
        <translation>empty: those of the system</translation>
    </message>
    <message>
        <source>Send a &amp;test mail</source>
        <translation>Send a &amp;test mail</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>St&amp;op</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>STARTTLS</source>
        <translation>STARTTLS</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Certificate file</source>
        <translation>Certificate file</translation>
    </message>
    <message>
        <source>Certificates (*.pem *.crt *.cer);;All files (*)</source>
        <translation>Certificates (*.pem *.crt *.cer);;All files (*)</translation>
    </message>
    <message>
        <source>Alarm schemes</source>
        <translation>Alarm schemes</translation>
    </message>
    <message>
        <source>Test mail of the alarm client</source>
        <translation>Test mail of the alarm client</translation>
    </message>
    <message>
        <source>This mail tests the mail settings of the alarm client on %1.
If you can read it, mail about alarms will arrive here.
</source>
        <translation>This mail tests the mail settings of the alarm client on %1.
If you can read it, mail about alarms will arrive here.
</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Browse…</translation>
    </message>
    <message>
        <source>Sending a test mail through %1…</source>
        <translation>Sending a test mail through %1…</translation>
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
        <source>Module %1: %2</source>
        <translation>Module %1: %2</translation>
    </message>
    <message>
        <source>There is no module &quot;%1&quot;.</source>
        <translation>There is no module &quot;%1&quot;.</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln device(s)</source>
        <translation>
            <numerusform>%1: %Ln device</numerusform>
            <numerusform>%1: %Ln devices</numerusform>
        </translation>
    </message>
    <message>
        <source>ACS Client</source>
        <translation>ACS Client</translation>
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
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>S&amp;chemes</source>
        <translation>S&amp;chemes</translation>
    </message>
    <message>
        <source>&amp;Load anew</source>
        <translation>&amp;Load anew</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>&amp;Import site…</source>
        <translation>&amp;Import site…</translation>
    </message>
    <message>
        <source>&amp;Export site…</source>
        <translation>&amp;Export site…</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Not saved</translation>
    </message>
    <message>
        <source>%1[*] - ACS Client</source>
        <translation>%1[*] - ACS Client</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) on</source>
        <translation>
            <numerusform>%Ln scheme on</numerusform>
            <numerusform>%Ln schemes on</numerusform>
        </translation>
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
        <source>--doors N [--seed S] [--output FILE]</source>
        <translation>--doors N [--seed S] [--output FILE]</translation>
    </message>
</context>
<context>
    <name>MomentArgument</name>
    <message>
        <source>There is no time zone &quot;%1&quot;.</source>
        <translation>There is no time zone &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date and time; they are written like 2026-11-23T08:30.</source>
        <translation>&quot;%1&quot; is no date and time; they are written like 2026-11-23T08:30.</translation>
    </message>
    <message>
        <source>The clock skips %1 in the time zone %2.</source>
        <translation>The clock skips %1 in the time zone %2.</translation>
    </message>
</context>
<context>
    <name>PageTabs</name>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>Close %1</translation>
    </message>
    <message>
        <source>● %1</source>
        <comment>a tab with unsaved changes</comment>
        <translation>● %1</translation>
    </message>
    <message>
        <source>Changes are not saved</source>
        <translation>Changes are not saved</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, not saved</translation>
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
    <message>
        <source>the module states no readable platform version</source>
        <translation>the module states no readable platform version</translation>
    </message>
    <message>
        <source>the module is built for version %1 of the platform, this client has %2; it needs a build for this version</source>
        <translation>the module is built for version %1 of the platform, this client has %2; it needs a build for this version</translation>
    </message>
    <message>
        <source>the module needs version %1 of the platform, this client has %2; the client is too old</source>
        <translation>the module needs version %1 of the platform, this client has %2; the client is too old</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1: %2 %</translation>
    </message>
    <message>
        <source>%1: %2 s</source>
        <translation>%1: %2 s</translation>
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
    <message numerus="yes">
        <source>Copy to %Ln Target(s)</source>
        <translation>
            <numerusform>Copy to %Ln Target</numerusform>
            <numerusform>Copy to %Ln Targets</numerusform>
        </translation>
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
    <name>RestoreCommand</name>
    <message>
        <source>Puts a copy of a database back.</source>
        <translation>Puts a copy of a database back.</translation>
    </message>
    <message>
        <source>FILE [options]</source>
        <translation>FILE [options]</translation>
    </message>
    <message>
        <source>This is the database itself.</source>
        <translation>This is the database itself.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>Schemes: %1</source>
        <translation>Schemes: %1</translation>
    </message>
    <message>
        <source>The damaged database is kept as %1</source>
        <translation>The damaged database is kept as %1</translation>
    </message>
</context>
<context>
    <name>RevertCommand</name>
    <message>
        <source>Takes a step of the history back.</source>
        <translation>Takes a step of the history back.</translation>
    </message>
    <message>
        <source>STEP [options]</source>
        <translation>STEP [options]</translation>
    </message>
    <message>
        <source>There is no step %1.</source>
        <translation>There is no step %1.</translation>
    </message>
    <message>
        <source>Schemes taken back: %1</source>
        <translation>Schemes taken back: %1</translation>
    </message>
    <message>
        <source>Changed since, and left as they are: %1</source>
        <translation>Changed since, and left as they are: %1</translation>
    </message>
</context>
<context>
    <name>SaveIndicator</name>
    <message>
        <source>Schemes saved</source>
        <translation>Schemes saved</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>Saving…</translation>
    </message>
</context>
<context>
    <name>SchemeActionText</name>
    <message>
        <source>Change Scheme</source>
        <translation>Change Scheme</translation>
    </message>
    <message>
        <source>Switch Scheme On</source>
        <translation>Switch Scheme On</translation>
    </message>
    <message>
        <source>Switch Scheme Off</source>
        <translation>Switch Scheme Off</translation>
    </message>
    <message>
        <source>Switch Alarm Sound On</source>
        <translation>Switch Alarm Sound On</translation>
    </message>
    <message>
        <source>Switch Alarm Sound Off</source>
        <translation>Switch Alarm Sound Off</translation>
    </message>
    <message>
        <source>Switch Mail On</source>
        <translation>Switch Mail On</translation>
    </message>
    <message>
        <source>Switch Mail Off</source>
        <translation>Switch Mail Off</translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Source(s)</source>
        <translation>
            <numerusform>Copy to %Ln Source</numerusform>
            <numerusform>Copy to %Ln Sources</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>Restore Unsaved Edits</translation>
    </message>
    <message numerus="yes">
        <source>Link %Ln Output(s)</source>
        <translation>
            <numerusform>Link %Ln Output</numerusform>
            <numerusform>Link %Ln Outputs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlink %Ln Output(s)</source>
        <translation>
            <numerusform>Unlink %Ln Output</numerusform>
            <numerusform>Unlink %Ln Outputs</numerusform>
        </translation>
    </message>
    <message>
        <source>Change Outputs</source>
        <translation>Change Outputs</translation>
    </message>
    <message>
        <source>Change Output Settings</source>
        <translation>Change Output Settings</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 to %n Day(s)</source>
        <translation>
            <numerusform>Copy %1 to %n Day</numerusform>
            <numerusform>Copy %1 to %n Days</numerusform>
        </translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>Set %1</translation>
    </message>
    <message numerus="yes">
        <source>Set %n Day(s)</source>
        <translation>
            <numerusform>Set %n Day</numerusform>
            <numerusform>Set %n Days</numerusform>
        </translation>
    </message>
    <message>
        <source>Paint %1</source>
        <translation>Paint %1</translation>
    </message>
    <message numerus="yes">
        <source>Paint %n Day(s)</source>
        <translation>
            <numerusform>Paint %n Day</numerusform>
            <numerusform>Paint %n Days</numerusform>
        </translation>
    </message>
    <message>
        <source>Erase %1</source>
        <translation>Erase %1</translation>
    </message>
    <message numerus="yes">
        <source>Erase %n Day(s)</source>
        <translation>
            <numerusform>Erase %n Day</numerusform>
            <numerusform>Erase %n Days</numerusform>
        </translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Change %1</translation>
    </message>
    <message numerus="yes">
        <source>Change %n Day(s)</source>
        <translation>
            <numerusform>Change %n Day</numerusform>
            <numerusform>Change %n Days</numerusform>
        </translation>
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
</context>
<context>
    <name>SchemeConflictDialog</name>
    <message>
        <source>&amp;Keep their changes and save only mine</source>
        <translation>&amp;Keep their changes and save only mine</translation>
    </message>
    <message>
        <source>&amp;Load their schemes and discard my changes</source>
        <translation>&amp;Load their schemes and discard my changes</translation>
    </message>
    <message>
        <source>&amp;Save my schemes over theirs</source>
        <translation>&amp;Save my schemes over theirs</translation>
    </message>
    <message>
        <source>Schemes were changed elsewhere</source>
        <translation>Schemes were changed elsewhere</translation>
    </message>
    <message numerus="yes">
        <source>Another program has changed %Ln scheme(s) since they were loaded.</source>
        <translation>
            <numerusform>Another program has changed %Ln scheme since it was loaded.</numerusform>
            <numerusform>Another program has changed %Ln schemes since they were loaded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You have changed %Ln of them too; there, saving writes yours.</source>
        <translation>
            <numerusform>You have changed %Ln of them too; there, saving writes yours.</numerusform>
            <numerusform>You have changed %Ln of them too; there, saving writes yours.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SchemeDamageDialog</name>
    <message>
        <source>&amp;Leave it as it is, to look only</source>
        <translation>&amp;Leave it as it is, to look only</translation>
    </message>
    <message>
        <source>&amp;Start with no schemes</source>
        <translation>&amp;Start with no schemes</translation>
    </message>
    <message>
        <source>The scheme database is damaged</source>
        <translation>The scheme database is damaged</translation>
    </message>
    <message>
        <source>The file %1 is damaged. What can still be read of it is shown; nothing can be saved.</source>
        <translation>The file %1 is damaged. What can still be read of it is shown; nothing can be saved.</translation>
    </message>
    <message>
        <source>Whatever you choose, the damaged file is kept.</source>
        <translation>Whatever you choose, the damaged file is kept.</translation>
    </message>
    <message>
        <source>There is no sound backup that could take its place.</source>
        <translation>There is no sound backup that could take its place.</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Restore the backup of %1 with %Ln scheme(s)</source>
        <translation>
            <numerusform>&amp;Restore the backup of %1 with %Ln scheme</numerusform>
            <numerusform>&amp;Restore the backup of %1 with %Ln schemes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SchemeExplanation</name>
    <message>
        <source>The scheme is switched off.</source>
        <translation>The scheme is switched off.</translation>
    </message>
    <message>
        <source>The scheme is not armed at this time; it will be from %1.</source>
        <translation>The scheme is not armed at this time; it will be from %1.</translation>
    </message>
    <message>
        <source>The scheme is switched on but never armed.</source>
        <translation>The scheme is switched on but never armed.</translation>
    </message>
    <message>
        <source>The scheme is armed since %1 until %2.</source>
        <translation>The scheme is armed since %1 until %2.</translation>
    </message>
    <message>
        <source>The scheme is armed all the time.</source>
        <translation>The scheme is armed all the time.</translation>
    </message>
    <message>
        <source>There is no scheme for this event.</source>
        <translation>There is no scheme for this event.</translation>
    </message>
    <message>
        <source>Such an event does not happen there.</source>
        <translation>Such an event does not happen there.</translation>
    </message>
</context>
<context>
    <name>SchemeFileProblem</name>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, line %2: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SchemeFiles</name>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>this is no file</translation>
    </message>
</context>
<context>
    <name>SchemeHistoryReader</name>
    <message>
        <source>There is no history yet; it begins with the next save.</source>
        <translation>There is no history yet; it begins with the next save.</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>The history cannot be read: %1</translation>
    </message>
    <message>
        <source>beginning</source>
        <translation>beginning</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>saved</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>outside</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>taken back</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>imported</translation>
    </message>
    <message>
        <source>restored</source>
        <translation>restored</translation>
    </message>
</context>
<context>
    <name>SchemeInput</name>
    <message>
        <source>The event source, by its key or as &quot;device/door&quot;.</source>
        <translation>The event source, by its key or as &quot;device/door&quot;.</translation>
    </message>
    <message>
        <source>The event type, by its number or its name.</source>
        <translation>The event type, by its number or its name.</translation>
    </message>
    <message>
        <source>There is no event type &quot;%1&quot;.</source>
        <translation>There is no event type &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SchemeSaving</name>
    <message>
        <source>Another program has changed the schemes.</source>
        <translation>Another program has changed the schemes.</translation>
    </message>
    <message>
        <source>The stored schemes are no longer those that were loaded.</source>
        <translation>The stored schemes are no longer those that were loaded.</translation>
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
        <source>%Ln scheme(s) loaded.</source>
        <translation>
            <numerusform>%Ln scheme loaded.</numerusform>
            <numerusform>%Ln schemes loaded.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) saved.</source>
        <translation>
            <numerusform>%Ln scheme saved.</numerusform>
            <numerusform>%Ln schemes saved.</numerusform>
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
    <message>
        <source>No scheme has changed; nothing had to be saved.</source>
        <translation>No scheme has changed; nothing had to be saved.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) stay as another program has saved them. To see them here, load anew.</source>
        <translation>
            <numerusform>%Ln scheme stays as another program has saved it. To see it here, load anew.</numerusform>
            <numerusform>%Ln schemes stay as another program has saved them. To see them here, load anew.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) taken back.</source>
        <translation>
            <numerusform>%Ln scheme taken back.</numerusform>
            <numerusform>%Ln schemes taken back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) stay as they are, because they have changed since.</source>
        <translation>
            <numerusform>%Ln scheme stays as it is, because it has changed since.</numerusform>
            <numerusform>%Ln schemes stay as they are, because they have changed since.</numerusform>
        </translation>
    </message>
    <message>
        <source>The history does not tell of it, because its file cannot be written.</source>
        <translation>The history does not tell of it, because its file cannot be written.</translation>
    </message>
    <message>
        <source>No backup could be made before: %1</source>
        <translation>No backup could be made before: %1</translation>
    </message>
    <message>
        <source>The program did not end properly last time. The scheme database was checked: it is sound, but it holds %1 row(s) that belong to no scheme; they are left out.</source>
        <translation>The program did not end properly last time. The scheme database was checked: it is sound, but it holds %1 row(s) that belong to no scheme; they are left out.</translation>
    </message>
    <message numerus="yes">
        <source>The backup of %1 with %Ln scheme(s) was restored.</source>
        <translation>
            <numerusform>The backup of %1 with %Ln scheme was restored.</numerusform>
            <numerusform>The backup of %1 with %Ln schemes was restored.</numerusform>
        </translation>
    </message>
    <message>
        <source>The program starts without schemes.</source>
        <translation>The program starts without schemes.</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>The damaged file was kept as %1.</translation>
    </message>
    <message>
        <source>The scheme database is sound again; nothing was changed.</source>
        <translation>The scheme database is sound again; nothing was changed.</translation>
    </message>
    <message>
        <source>The damaged scheme database was left as it is: %1</source>
        <translation>The damaged scheme database was left as it is: %1</translation>
    </message>
    <message>
        <source>another program has changed the schemes.</source>
        <translation>another program has changed the schemes.</translation>
    </message>
    <message>
        <source>the history does not tell what that step has changed.</source>
        <translation>the history does not tell what that step has changed.</translation>
    </message>
    <message>
        <source>another program has switched the scheme database to a journal that is not safe here, and still uses it.</source>
        <translation>another program has switched the scheme database to a journal that is not safe here, and still uses it.</translation>
    </message>
    <message>
        <source>the folder for backups cannot be written.</source>
        <translation>the folder for backups cannot be written.</translation>
    </message>
    <message>
        <source>Your changes are still here. Save again to choose what is kept.</source>
        <translation>Your changes are still here. Save again to choose what is kept.</translation>
    </message>
</context>
<context>
    <name>SchemeTextHandler</name>
    <message>
        <source>there are more problems; the rest was not looked at</source>
        <translation>there are more problems; the rest was not looked at</translation>
    </message>
    <message>
        <source>a day must be a list</source>
        <translation>a day must be a list</translation>
    </message>
    <message>
        <source>the entries of this list must be objects</source>
        <translation>the entries of this list must be objects</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>&quot;%1&quot; must be a text</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number from %2 to %3</source>
        <translation>&quot;%1&quot; must be a whole number from %2 to %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be true or false</source>
        <translation>&quot;%1&quot; must be true or false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>&quot;%1&quot; must be an object</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a list</source>
        <translation>&quot;%1&quot; must be a list</translation>
    </message>
    <message>
        <source>this is no file of alarm schemes</source>
        <translation>this is no file of alarm schemes</translation>
    </message>
    <message>
        <source>holds half a character</source>
        <translation>holds half a character</translation>
    </message>
    <message>
        <source>the text of &quot;%1&quot; %2</source>
        <comment>a field; what is wrong with its text</comment>
        <translation>the text of &quot;%1&quot; %2</translation>
    </message>
    <message>
        <source>this is a file of version %1; only version %2 can be read</source>
        <translation>this is a file of version %1; only version %2 can be read</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot; here</source>
        <translation>there is no field &quot;%1&quot; here</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here twice</source>
        <translation>&quot;%1&quot; stands here twice</translation>
    </message>
    <message>
        <source>this is nested too deep for a file of alarm schemes</source>
        <translation>this is nested too deep for a file of alarm schemes</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>&quot;%1&quot; is missing</translation>
    </message>
    <message>
        <source>&quot;windowID&quot; must be from 0 to %1</source>
        <translation>&quot;windowID&quot; must be from 0 to %1</translation>
    </message>
    <message>
        <source>the cell %1 stands here twice</source>
        <translation>the cell %1 stands here twice</translation>
    </message>
    <message>
        <source>the window %1 stands here twice</source>
        <translation>the window %1 stands here twice</translation>
    </message>
    <message>
        <source>the output &quot;%1&quot; is linked twice</source>
        <translation>the output &quot;%1&quot; is linked twice</translation>
    </message>
    <message>
        <source>the door &quot;%1&quot; is no whole number</source>
        <translation>the door &quot;%1&quot; is no whole number</translation>
    </message>
    <message>
        <source>the door %1 is linked twice</source>
        <translation>the door %1 is linked twice</translation>
    </message>
    <message>
        <source>a region from %1 to %2 is none</source>
        <translation>a region from %1 to %2 is none</translation>
    </message>
    <message>
        <source>&quot;defenceTime&quot; must be a list of seven lists</source>
        <translation>&quot;defenceTime&quot; must be a list of seven lists</translation>
    </message>
    <message>
        <source>the cell %1 lies outside the layout</source>
        <translation>the cell %1 lies outside the layout</translation>
    </message>
    <message>
        <source>the window %1 is none of the cells in use</source>
        <translation>the window %1 is none of the cells in use</translation>
    </message>
    <message>
        <source>the scheme %1, event type %2, is listed twice</source>
        <translation>the scheme %1, event type %2, is listed twice</translation>
    </message>
</context>
<context>
    <name>SchemeTextReader</name>
    <message>
        <source>the text is not in UTF-8</source>
        <translation>the text is not in UTF-8</translation>
    </message>
    <message>
        <source>the text could not be read to its end: %1</source>
        <translation>the text could not be read to its end: %1</translation>
    </message>
    <message>
        <source>something follows after the end</source>
        <translation>something follows after the end</translation>
    </message>
    <message>
        <source>the text is empty</source>
        <translation>the text is empty</translation>
    </message>
    <message>
        <source>a text is not valid UTF-8, or holds an escape or a control character that is not allowed</source>
        <translation>a text is not valid UTF-8, or holds an escape or a control character that is not allowed</translation>
    </message>
    <message>
        <source>a number has too many digits</source>
        <translation>a number has too many digits</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>the text ends too early</translation>
    </message>
    <message>
        <source>this is not valid JSON</source>
        <translation>this is not valid JSON</translation>
    </message>
</context>
<context>
    <name>SchemeTextRules</name>
    <message>
        <source>holds a double quote or a null character</source>
        <translation>holds a double quote or a null character</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>is longer than %1 characters</translation>
    </message>
    <message>
        <source>is a word that the database keeps for itself</source>
        <translation>is a word that the database keeps for itself</translation>
    </message>
</context>
<context>
    <name>SchemeTextWriter</name>
    <message>
        <source>A text of the scheme %1, event type %2, holds a double quote or a null character, which cannot be written.</source>
        <translation>A text of the scheme %1, event type %2, holds a double quote or a null character, which cannot be written.</translation>
    </message>
</context>
<context>
    <name>SchemeWords</name>
    <message>
        <source>%1, %2</source>
        <comment>source, event</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>plays the alarm sound</source>
        <translation>plays the alarm sound</translation>
    </message>
    <message>
        <source>lets the icon twinkle on the e-map</source>
        <translation>lets the icon twinkle on the e-map</translation>
    </message>
    <message>
        <source>sends a mail</source>
        <translation>sends a mail</translation>
    </message>
    <message>
        <source>not armed</source>
        <translation>not armed</translation>
    </message>
    <message>
        <source>switches on %1 for %2 s</source>
        <translation>switches on %1 for %2 s</translation>
    </message>
    <message>
        <source>is linked to %1 (%2 s)</source>
        <translation>is linked to %1 (%2 s)</translation>
    </message>
    <message>
        <source>keeps %1 open</source>
        <translation>keeps %1 open</translation>
    </message>
    <message>
        <source>opens %1</source>
        <translation>opens %1</translation>
    </message>
    <message>
        <source>shows %1 in window %2 for %3 s</source>
        <translation>shows %1 in window %2 for %3 s</translation>
    </message>
    <message>
        <source>shows and records %1 in window %2 for %3 s</source>
        <translation>shows and records %1 in window %2 for %3 s</translation>
    </message>
    <message>
        <source>records %1 of window %2 for %3 s</source>
        <translation>records %1 of window %2 for %3 s</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>now %1</translation>
    </message>
    <message>
        <source>no longer %1</source>
        <translation>no longer %1</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>switched on</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>switched off</translation>
    </message>
    <message>
        <source>%1: %2, was %3</source>
        <comment>day, armed time, armed time before</comment>
        <translation>%1: %2, was %3</translation>
    </message>
    <message>
        <source>another layout of the video wall</source>
        <translation>another layout of the video wall</translation>
    </message>
</context>
<context>
    <name>SchemeWriting</name>
    <message>
        <source>Writing the schemes</source>
        <translation>Writing the schemes</translation>
    </message>
    <message>
        <source>There is no backup of what was there before: %1</source>
        <translation>There is no backup of what was there before: %1</translation>
    </message>
    <message>
        <source>The history does not tell of it: %1</source>
        <translation>The history does not tell of it: %1</translation>
    </message>
</context>
<context>
    <name>ShowCommand</name>
    <message>
        <source>Shows everything that is set in a scheme.</source>
        <translation>Shows everything that is set in a scheme.</translation>
    </message>
    <message>
        <source>--source S --event TYPE [options]</source>
        <translation>--source S --event TYPE [options]</translation>
    </message>
    <message>
        <source>--%1 is missing.</source>
        <translation>--%1 is missing.</translation>
    </message>
    <message>
        <source>There is no scheme for %1.</source>
        <translation>There is no scheme for %1.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>Key: %1, event type %2</source>
        <translation>Key: %1, event type %2</translation>
    </message>
    <message>
        <source>Switched on: %1</source>
        <translation>Switched on: %1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>Sound: %1</translation>
    </message>
    <message>
        <source>Twinkle on the e-map: %1</source>
        <translation>Twinkle on the e-map: %1</translation>
    </message>
    <message>
        <source>Mail: %1</source>
        <translation>Mail: %1</translation>
    </message>
    <message>
        <source>Outputs: none</source>
        <translation>Outputs: none</translation>
    </message>
    <message>
        <source>Outputs:</source>
        <translation>Outputs:</translation>
    </message>
    <message>
        <source>%1 (%2): switched on for %3 s</source>
        <translation>%1 (%2): switched on for %3 s</translation>
    </message>
    <message>
        <source>%1 (%2): not switched on by itself, for %3 s otherwise</source>
        <translation>%1 (%2): not switched on by itself, for %3 s otherwise</translation>
    </message>
    <message>
        <source>Doors: none</source>
        <translation>Doors: none</translation>
    </message>
    <message>
        <source>Doors:</source>
        <translation>Doors:</translation>
    </message>
    <message>
        <source>%1 (%2): kept open</source>
        <translation>%1 (%2): kept open</translation>
    </message>
    <message>
        <source>%1 (%2): opened</source>
        <translation>%1 (%2): opened</translation>
    </message>
    <message>
        <source>Video: none</source>
        <translation>Video: none</translation>
    </message>
    <message>
        <source>Video:</source>
        <translation>Video:</translation>
    </message>
    <message>
        <source>Window %1: %2 (%3), shown: %4, recorded: %5, preset %6, stream %7, %8 s</source>
        <translation>Window %1: %2 (%3), shown: %4, recorded: %5, preset %6, stream %7, %8 s</translation>
    </message>
    <message>
        <source>Video windows: %1 rows, %2 columns, %3 used</source>
        <translation>Video windows: %1 rows, %2 columns, %3 used</translation>
    </message>
    <message>
        <source>Defence time:</source>
        <translation>Defence time:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>day of the week, regions</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SilencedFindings</name>
    <message>
        <source>The text is not in UTF-8.</source>
        <translation>The text is not in UTF-8.</translation>
    </message>
    <message>
        <source>Line %1: there is no finding &quot;%2&quot;.</source>
        <translation>Line %1: there is no finding &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; is not the key of an event source.</source>
        <translation>Line %1: &quot;%2&quot; is not the key of an event source.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 is not a file.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 is larger than a list of findings can be.</source>
        <translation>%1 is larger than a list of findings can be.</translation>
    </message>
</context>
<context>
    <name>SiteArgument</name>
    <message>
        <source>Works on the site of this directory instead of the client&apos;s own.</source>
        <translation>Works on the site of this directory instead of the client&apos;s own.</translation>
    </message>
    <message>
        <source>Works on this site file.</source>
        <translation>Works on this site file.</translation>
    </message>
    <message>
        <source>--site and --data-dir exclude each other.</source>
        <translation>--site and --data-dir exclude each other.</translation>
    </message>
</context>
<context>
    <name>SiteExchange</name>
    <message>
        <source>there is not enough memory</source>
        <translation>there is not enough memory</translation>
    </message>
    <message>
        <source>a quotation mark stands where none may; a cell that holds one is written in quotation marks, with its own doubled</source>
        <translation>a quotation mark stands where none may; a cell that holds one is written in quotation marks, with its own doubled</translation>
    </message>
    <message>
        <source>a closing quotation mark is missing</source>
        <translation>a closing quotation mark is missing</translation>
    </message>
    <message>
        <source>it belonged to the device %1</source>
        <translation>it belonged to the device %1</translation>
    </message>
    <message>
        <source>it stood in no group</source>
        <translation>it stood in no group</translation>
    </message>
    <message>
        <source>it stood in the group %1</source>
        <translation>it stood in the group %1</translation>
    </message>
    <message>
        <source>its type was %1</source>
        <translation>its type was %1</translation>
    </message>
    <message>
        <source>its number was %1</source>
        <translation>its number was %1</translation>
    </message>
    <message>
        <source>it was enabled</source>
        <translation>it was enabled</translation>
    </message>
    <message>
        <source>it was disabled</source>
        <translation>it was disabled</translation>
    </message>
    <message>
        <source>it was online</source>
        <translation>it was online</translation>
    </message>
    <message>
        <source>it was offline</source>
        <translation>it was offline</translation>
    </message>
    <message>
        <source>group</source>
        <translation>group</translation>
    </message>
    <message>
        <source>device</source>
        <translation>device</translation>
    </message>
    <message>
        <source>channel</source>
        <translation>channel</translation>
    </message>
    <message>
        <source>%1 %2 &quot;%3&quot;</source>
        <translation>%1 %2 &quot;%3&quot;</translation>
    </message>
    <message>
        <source>%1 is added</source>
        <translation>%1 is added</translation>
    </message>
    <message>
        <source>%1 is renamed: %2</source>
        <translation>%1 is renamed: %2</translation>
    </message>
    <message>
        <source>%1 is changed: %2</source>
        <translation>%1 is changed: %2</translation>
    </message>
    <message>
        <source>%1 is removed</source>
        <translation>%1 is removed</translation>
    </message>
    <message>
        <source>Nothing changes: the site is the same already.</source>
        <translation>Nothing changes: the site is the same already.</translation>
    </message>
    <message>
        <source>Only the order changes.</source>
        <translation>Only the order changes.</translation>
    </message>
    <message>
        <source>%1 added, %2 renamed, %3 changed, %4 removed.</source>
        <translation>%1 added, %2 renamed, %3 changed, %4 removed.</translation>
    </message>
    <message>
        <source>it was &quot;%1&quot;</source>
        <translation>it was &quot;%1&quot;</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>there are %1 backup copies already; move them away</source>
        <translation>there are %1 backup copies already; move them away</translation>
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
        <source>the file was changed by somebody else meanwhile</source>
        <translation>the file was changed by somebody else meanwhile</translation>
    </message>
    <message>
        <source>the file does not exist any more</source>
        <translation>the file does not exist any more</translation>
    </message>
    <message>
        <source>this is not UTF-8 but looks like UTF-16; save the table as UTF-8</source>
        <translation>this is not UTF-8 but looks like UTF-16; save the table as UTF-8</translation>
    </message>
    <message>
        <source>the line is not valid UTF-8; save the table as UTF-8</source>
        <translation>the line is not valid UTF-8; save the table as UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no record; write group, device or channel</source>
        <translation>&quot;%1&quot; is no record; write group, device or channel</translation>
    </message>
    <message>
        <source>the first row must name the columns: %1</source>
        <translation>the first row must name the columns: %1</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;; the columns are %2</source>
        <translation>unknown column &quot;%1&quot;; the columns are %2</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; stands twice</source>
        <translation>the column &quot;%1&quot; stands twice</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>the column &quot;%1&quot; is missing</translation>
    </message>
    <message>
        <source>the row has more cells than there are columns; a name with the separator in it is written in quotation marks</source>
        <translation>the row has more cells than there are columns; a name with the separator in it is written in quotation marks</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; must be a whole number from 1 to %2</source>
        <translation>the id &quot;%1&quot; must be a whole number from 1 to %2</translation>
    </message>
    <message>
        <source>the id %1 already stands on line %2</source>
        <translation>the id %1 already stands on line %2</translation>
    </message>
    <message>
        <source>the parent &quot;%1&quot; is no id</source>
        <translation>the parent &quot;%1&quot; is no id</translation>
    </message>
    <message>
        <source>the type &quot;%1&quot; must be a whole number from 0 to %2, or one of: %3</source>
        <translation>the type &quot;%1&quot; must be a whole number from 0 to %2, or one of: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the column &quot;%2&quot; must be yes or no</source>
        <translation>&quot;%1&quot; in the column &quot;%2&quot; must be yes or no</translation>
    </message>
    <message>
        <source>a %1 has nothing in the column &quot;%2&quot;</source>
        <translation>a %1 has nothing in the column &quot;%2&quot;</translation>
    </message>
    <message>
        <source>a channel needs the id of its device in the column &quot;parent&quot;</source>
        <translation>a channel needs the id of its device in the column &quot;parent&quot;</translation>
    </message>
    <message>
        <source>the number &quot;%1&quot; must be a whole number from 0 to %2</source>
        <translation>the number &quot;%1&quot; must be a whole number from 0 to %2</translation>
    </message>
    <message>
        <source>the table is empty</source>
        <translation>the table is empty</translation>
    </message>
    <message>
        <source>the device %1 does not exist</source>
        <translation>the device %1 does not exist</translation>
    </message>
    <message>
        <source>the number %1 of the type %2 already stands on line %3</source>
        <translation>the number %1 of the type %2 already stands on line %3</translation>
    </message>
    <message>
        <source>the group %1 does not exist</source>
        <translation>the group %1 does not exist</translation>
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
    <name>SiteImportDialog</name>
    <message>
        <source>What is removed disappears from the open pages at once, and its schemes go with the next save.</source>
        <translation>What is removed disappears from the open pages at once, and its schemes go with the next save.</translation>
    </message>
    <message>
        <source>What the import does</source>
        <translation>What the import does</translation>
    </message>
    <message>
        <source>Import a site</source>
        <translation>Import a site</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s): correct the file and import it again. Nothing has been changed.</source>
        <translation>
            <numerusform>%n problem: correct the file and import it again. Nothing has been changed.</numerusform>
            <numerusform>%n problems: correct the file and import it again. Nothing has been changed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SiteImportModel</name>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>What</source>
        <translation>What</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) are wrong.</source>
        <translation>
            <numerusform>%n more line are wrong.</numerusform>
            <numerusform>%n more lines are wrong.</numerusform>
        </translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Wrong</translation>
    </message>
    <message>
        <source>What stays stands in another order.</source>
        <translation>What stays stands in another order.</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Moved</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Added</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Changed</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removed</translation>
    </message>
</context>
<context>
    <name>SiteIndex</name>
    <message>
        <source>&quot;%1&quot; is no key, and without a site file there are no names.</source>
        <translation>&quot;%1&quot; is no key, and without a site file there are no names.</translation>
    </message>
    <message>
        <source>The site has no &quot;%1&quot;.</source>
        <translation>The site has no &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of these: %2.</source>
        <translation>&quot;%1&quot; may be any of these: %2.</translation>
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
    <name>SiteTransfer</name>
    <message>
        <source>Import a site</source>
        <translation>Import a site</translation>
    </message>
    <message>
        <source>Tables and site files (*.csv *.tsv *.txt *.json);;All files (*)</source>
        <translation>Tables and site files (*.csv *.tsv *.txt *.json);;All files (*)</translation>
    </message>
    <message>
        <source>Export the site</source>
        <translation>Export the site</translation>
    </message>
    <message>
        <source>Table (*.csv);;Site file (*.json)</source>
        <translation>Table (*.csv);;Site file (*.json)</translation>
    </message>
    <message>
        <source>The site cannot be imported. %1</source>
        <translation>The site cannot be imported. %1</translation>
    </message>
    <message>
        <source>The site was not imported, and nothing has changed. %1</source>
        <translation>The site was not imported, and nothing has changed. %1</translation>
    </message>
    <message>
        <source>The site was imported: %1</source>
        <translation>The site was imported: %1</translation>
    </message>
    <message>
        <source>The old one is kept in &quot;%1&quot; beside it.</source>
        <translation>The old one is kept in &quot;%1&quot; beside it.</translation>
    </message>
    <message>
        <source>The client works on this file itself; choose another for the export.</source>
        <translation>The client works on this file itself; choose another for the export.</translation>
    </message>
    <message>
        <source>The site cannot be exported. %1</source>
        <translation>The site cannot be exported. %1</translation>
    </message>
    <message>
        <source>The site was exported to %1.</source>
        <translation>The site was exported to %1.</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>The schemes are being saved. The program closes when that is done.</source>
        <translation>The schemes are being saved. The program closes when that is done.</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the program closes?</source>
        <translation>%1: there are changes that are not saved. Save them before the program closes?</translation>
    </message>
    <message>
        <source>The schemes are being saved. The tab closes when that is done.</source>
        <translation>The schemes are being saved. The tab closes when that is done.</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the tab closes?</source>
        <translation>%1: there are changes that are not saved. Save them before the tab closes?</translation>
    </message>
    <message>
        <source>The schemes are being saved. They are loaded anew when that is done.</source>
        <translation>The schemes are being saved. They are loaded anew when that is done.</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before everything is loaded anew?</source>
        <translation>%1: there are changes that are not saved. Save them before everything is loaded anew?</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the session ends?</source>
        <translation>%1: there are changes that are not saved. Save them before the session ends?</translation>
    </message>
    <message>
        <source>Changes are not saved</source>
        <translation>Changes are not saved</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The last save failed. Close the program all the same and lose the changes?</source>
        <translation>The last save failed. Close the program all the same and lose the changes?</translation>
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
<context>
    <name>WeekHeatMap</name>
    <message>
        <source>%1 %2-%3</source>
        <comment>day, begin, end</comment>
        <translation>%1 %2-%3</translation>
    </message>
    <message>
        <source>%1: %2 of %3 schemes armed</source>
        <translation>%1: %2 of %3 schemes armed</translation>
    </message>
    <message>
        <source>%1: %2 of %3 schemes armed, %4 more for a part of it</source>
        <translation>%1: %2 of %3 schemes armed, %4 more for a part of it</translation>
    </message>
</context>
<context>
    <name>WhoSwitchesCommand</name>
    <message>
        <source>Tells which schemes switch an output on.</source>
        <translation>Tells which schemes switch an output on.</translation>
    </message>
    <message>
        <source>no: the scheme is switched off</source>
        <translation>no: the scheme is switched off</translation>
    </message>
    <message>
        <source>no: the scheme is never armed</source>
        <translation>no: the scheme is never armed</translation>
    </message>
    <message>
        <source>for %1 s</source>
        <translation>for %1 s</translation>
    </message>
    <message>
        <source>no: the output is not opened automatically</source>
        <translation>no: the output is not opened automatically</translation>
    </message>
    <message>
        <source>OUTPUT [options]</source>
        <translation>OUTPUT [options]</translation>
    </message>
    <message>
        <source>%1, linked by %2:</source>
        <comment>output, number of schemes</comment>
        <translation>%1, linked by %2:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>scheme, whether and how long it switches the output on</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>this is no file</source>
        <translation>this is no file</translation>
    </message>
</context>
</TS>
