<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ACSEventConfigUI::CACSEventConfigWidget</name>
    <message>
        <source>EVENT_CFG-MODULE</source>
        <translation>报警预案</translation>
    </message>
    <message>
        <source>alarm cfg details</source>
        <translation>设置各门和报警输入的事件处理方式</translation>
    </message>
</context>
<context>
    <name>ACSEventCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>复制到</translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Door(s)</source>
        <translation>
            <numerusform>复制到 %Ln 个门</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Alarm Input(s)</source>
        <translation>
            <numerusform>复制到 %Ln 个报警输入</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ACSEventNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation>报警声音：</translation>
    </message>
    <message>
        <source>Alarm Sound</source>
        <translation>报警声音</translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation>发送邮件：</translation>
    </message>
    <message>
        <source>Send Mail</source>
        <translation>发送邮件</translation>
    </message>
    <message>
        <source>Prompt</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>The SMTP setting is not enabled. Do you want to edit it right now?</source>
        <translation>邮件服务器设置未启用，是否立即编辑？</translation>
    </message>
    <message>
        <source>You do not have system config right.</source>
        <translation>您没有系统配置权限。</translation>
    </message>
</context>
<context>
    <name>ACSEventSchemeEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Alarm Event</source>
        <translation>报警事件</translation>
    </message>
    <message>
        <source>Abnormal Event</source>
        <translation>异常事件</translation>
    </message>
    <message>
        <source>Normal Event</source>
        <translation>正常事件</translation>
    </message>
    <message>
        <source>External Event</source>
        <translation>外部事件</translation>
    </message>
    <message>
        <source>Alarm inputs</source>
        <translation>报警输入</translation>
    </message>
    <message>
        <source>Alarm scheme on</source>
        <translation>启用报警预案</translation>
    </message>
    <message>
        <source>Notify</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Alarm Out</source>
        <translation>报警输出</translation>
    </message>
    <message>
        <source>Defence Time</source>
        <translation>布防时间</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>复制到</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>No event selected</source>
        <translation>未选择事件</translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation>报警预案已启用</translation>
    </message>
    <message>
        <source>Select a door or a device on the left to edit its alarm schemes.</source>
        <translation>请在左侧选择门或设备，以编辑其报警预案。</translation>
    </message>
    <message>
        <source>Select an event to edit its alarm scheme.</source>
        <translation>请选择事件，以编辑其报警预案。</translation>
    </message>
    <message>
        <source>This device has no alarm inputs.</source>
        <translation>此设备没有报警输入。</translation>
    </message>
    <message>
        <source>Select an alarm input to edit its alarm scheme.</source>
        <translation>请选择报警输入，以编辑其报警预案。</translation>
    </message>
    <message>
        <source>This cannot have alarm schemes: it is disabled or of another type.</source>
        <translation>此项不能设置报警预案：它已停用或类型不符。</translation>
    </message>
</context>
<context>
    <name>AlarmSchemeReadOutcome</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>文件“%1”不存在。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened for reading. Check the rights on it and on its folder.</source>
        <translation>无法打开“%1”进行读取。请检查该文件及其所在文件夹的权限。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no database.</source>
        <translation>“%1”不是数据库。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no alarm schemes.</source>
        <translation>“%1”不含报警预案。</translation>
    </message>
    <message>
        <source>A write into &quot;%1&quot; was cut off and has left a journal beside it, which only a program that may write can take back. Start the client once, then try again.</source>
        <translation>对“%1”的写入曾被中断，旁边留下了日志文件，只有可写入的程序才能将其回滚。请启动一次客户端，然后重试。</translation>
    </message>
    <message>
        <source>Another program is using &quot;%1&quot;. Try again when it has finished.</source>
        <translation>另一个程序正在使用“%1”。请等待其完成后重试。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged. Restore a copy of it.</source>
        <translation>“%1”已损坏。请恢复其备份。</translation>
    </message>
    <message>
        <source>The reading of &quot;%1&quot; was stopped.</source>
        <translation>对“%1”的读取已停止。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
</context>
<context>
    <name>BackupCommand</name>
    <message>
        <source>Copies the database.</source>
        <translation>复制数据库。</translation>
    </message>
    <message>
        <source>[--output FILE] [options]</source>
        <translation>[--output 文件] [选项]</translation>
    </message>
    <message>
        <source>File to make; without it the copy goes to the folder &quot;backups&quot; beside the database, where the last %1 are kept.</source>
        <translation>要生成的文件；不指定时备份存放到数据库旁的“backups”文件夹，其中保留最近 %1 份。</translation>
    </message>
    <message>
        <source>There is a file &quot;%1&quot; already.</source>
        <translation>文件“%1”已存在。</translation>
    </message>
    <message>
        <source>The backup could not be made: %1</source>
        <translation>无法创建备份：%1</translation>
    </message>
    <message>
        <source>Schemes: %1, copied to %2</source>
        <translation>预案：%1，已复制到 %2</translation>
    </message>
</context>
<context>
    <name>CheckCommand</name>
    <message>
        <source>Finds what cannot be meant: schemes that never act, links to nothing, impossible times.</source>
        <translation>查找不合理之处：从不动作的预案、指向不存在对象的联动、不可能的时间。</translation>
    </message>
    <message>
        <source>[--silence FILE] [options]</source>
        <translation>[--silence 文件] [选项]</translation>
    </message>
    <message>
        <source>Leaves out the findings whose codes stand in this file.</source>
        <translation>忽略代码列于此文件中的检查结果。</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在检查</translation>
    </message>
    <message>
        <source>%1 %2: %3</source>
        <comment>severity, code, place</comment>
        <translation>%1 %2：%3</translation>
    </message>
    <message>
        <source>No site file: sources, links, doors and devices were not looked at.</source>
        <translation>没有站点文件：未检查事件源、联动、门和设备。</translation>
    </message>
    <message>
        <source>Schemes: %1, errors: %2, warnings: %3, information: %4, silenced: %5</source>
        <translation>预案：%1，错误：%2，警告：%3，提示：%4，已忽略：%5</translation>
    </message>
</context>
<context>
    <name>ClientApplication</name>
    <message>
        <source>The picture %1 cannot be written: %2</source>
        <translation>无法写入图片 %1：%2</translation>
    </message>
    <message>
        <source>The data directory %1 cannot be made.</source>
        <translation>无法创建数据目录 %1。</translation>
    </message>
    <message>
        <source>Site file %1</source>
        <translation>站点文件 %1</translation>
    </message>
    <message>
        <source>Unsaved changes cannot be kept against a crash: %1.</source>
        <translation>无法保留未保存的更改以防程序崩溃：%1。</translation>
    </message>
</context>
<context>
    <name>ClientOptionParser</name>
    <message>
        <source>Keep settings, site and databases in this directory.</source>
        <translation>将设置、站点和数据库保存在此目录中。</translation>
    </message>
    <message>
        <source>Read the site from this file instead of the data directory.</source>
        <translation>从此文件而不是数据目录读取站点。</translation>
    </message>
    <message>
        <source>Work as administrator or operator.</source>
        <translation>以管理员或操作员身份工作。</translation>
    </message>
    <message>
        <source>Show all texts in this language.</source>
        <translation>以此语言显示所有文字。</translation>
    </message>
    <message>
        <source>Use the dark or the light theme.</source>
        <translation>使用深色或浅色主题。</translation>
    </message>
    <message>
        <source>Open the page of this module at the start.</source>
        <translation>启动时打开此模块的页面。</translation>
    </message>
    <message>
        <source>Draw the window into this PNG file once everything is shown, and end.</source>
        <translation>全部内容显示后将窗口绘制到此 PNG 文件，然后退出。</translation>
    </message>
    <message>
        <source>Print this help and end.</source>
        <translation>显示此帮助并退出。</translation>
    </message>
    <message>
        <source>Print the version and end.</source>
        <translation>显示版本并退出。</translation>
    </message>
    <message>
        <source>Client for configuring the alarm schemes of a site.</source>
        <translation>用于配置站点报警预案的客户端。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>The option --%1 needs a value.</source>
        <translation>选项 --%1 需要一个值。</translation>
    </message>
    <message>
        <source>The option --%1 is given more than once.</source>
        <translation>选项 --%1 重复出现。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no value for --%2; use one of: %3.</source>
        <translation>“%1”不是 --%2 的有效值，可用值：%3。</translation>
    </message>
</context>
<context>
    <name>CommandInput</name>
    <message>
        <source>Reading the schemes</source>
        <translation>正在读取预案</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Usage: acs-scheme &lt;command&gt; [options]</source>
        <translation>用法：acs-scheme &lt;命令&gt; [选项]</translation>
    </message>
    <message>
        <source>Commands:</source>
        <translation>命令：</translation>
    </message>
    <message>
        <source>&quot;acs-scheme &lt;command&gt; --help&quot; lists a command&apos;s options.</source>
        <translation>“acs-scheme &lt;命令&gt; --help”列出该命令的选项。</translation>
    </message>
    <message>
        <source>No command given.</source>
        <translation>未指定命令。</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>未知命令“%1”。</translation>
    </message>
    <message>
        <source>The output could not be written.</source>
        <translation>无法写入输出。</translation>
    </message>
</context>
<context>
    <name>CommandOptions</name>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>How the result is written; text unless it is said here.</source>
        <translation>结果的输出格式；不指定时为 text。</translation>
    </message>
    <message>
        <source>Works on the data of this directory instead of the client&apos;s own.</source>
        <translation>使用此目录中的数据，而不是客户端自己的数据。</translation>
    </message>
    <message>
        <source>Works on this database file.</source>
        <translation>使用此数据库文件。</translation>
    </message>
    <message>
        <source>Takes devices and names from this site file.</source>
        <translation>从此站点文件获取设备和名称。</translation>
    </message>
    <message>
        <source>Usage: %1 %2</source>
        <translation>用法：%1 %2</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>An argument is missing; the usage is &quot;%1&quot;.</source>
        <translation>缺少参数；用法为“%1”。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 需要一个值。</translation>
    </message>
    <message>
        <source>--format takes &quot;text&quot; or &quot;json&quot;.</source>
        <translation>--format 须为“text”或“json”。</translation>
    </message>
    <message>
        <source>--database and --data-dir exclude each other.</source>
        <translation>--database 和 --data-dir 不能同时使用。</translation>
    </message>
</context>
<context>
    <name>CoveragePage</name>
    <message>
        <source>Coverage</source>
        <translation>布防覆盖</translation>
    </message>
    <message>
        <source>When is the site watched, and where are the gaps?</source>
        <translation>站点何时处于布防，哪里有空档？</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>设备(&amp;D)</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>&amp;Category</source>
        <translation>类别(&amp;C)</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Armed schemes over the week</source>
        <translation>一周内布防的预案</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>All devices</source>
        <translation>所有设备</translation>
    </message>
    <message>
        <source>All categories</source>
        <translation>所有类别</translation>
    </message>
    <message>
        <source>No scheme is switched on here; nothing is ever armed.</source>
        <translation>此处未启用任何预案，始终不会布防。</translation>
    </message>
    <message>
        <source>Nothing to complain of.</source>
        <translation>未发现问题。</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2, notes: %3</source>
        <translation>错误：%1，警告：%2，提示：%3</translation>
    </message>
    <message>
        <source>Looking through the schemes…</source>
        <translation>正在检查预案…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) switched on. The stronger the green of a half hour, the more of them are armed.</source>
        <translation>
            <numerusform>已启用 %Ln 个预案。半小时格的绿色越鲜明，该时间布防的预案越多。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DiffCommand</name>
    <message>
        <source>Tells what differs between two databases, backups or exports.</source>
        <translation>显示两个数据库、备份或导出文件之间的差异。</translation>
    </message>
    <message>
        <source>A B [options]</source>
        <translation>A B [选项]</translation>
    </message>
    <message>
        <source>Reading the first file</source>
        <translation>正在读取第一个文件</translation>
    </message>
    <message>
        <source>Reading the second file</source>
        <translation>正在读取第二个文件</translation>
    </message>
    <message>
        <source>Comparing the schemes</source>
        <translation>正在比较预案</translation>
    </message>
</context>
<context>
    <name>DifferenceText</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <comment>field, before, after</comment>
        <translation>%1：%2 -&gt; %3</translation>
    </message>
    <message>
        <source>added    %1</source>
        <translation>新增  %1</translation>
    </message>
    <message>
        <source>removed  %1</source>
        <translation>删除  %1</translation>
    </message>
    <message>
        <source>changed  %1</source>
        <translation>更改  %1</translation>
    </message>
    <message>
        <source>Added: %1, removed: %2, changed: %3, equal: %4</source>
        <translation>新增：%1，删除：%2，更改：%3，相同：%4</translation>
    </message>
</context>
<context>
    <name>DraftFile</name>
    <message>
        <source>it is no draft</source>
        <translation>该文件不是草稿</translation>
    </message>
    <message>
        <source>another version of the program has written it</source>
        <translation>该文件由其他版本的程序写入</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>该文件已损坏</translation>
    </message>
</context>
<context>
    <name>DraftKeeper</name>
    <message>
        <source>there is no place for it in %1</source>
        <translation>%1 中没有可存放的位置</translation>
    </message>
</context>
<context>
    <name>DraftOffer</name>
    <message>
        <source>Unsaved changes were found</source>
        <translation>发现未保存的更改</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>稍后(&amp;L)</translation>
    </message>
    <message>
        <source>the page cannot use it</source>
        <translation>页面无法使用该草稿</translation>
    </message>
    <message>
        <source>The changes are stored already; there was nothing to restore.</source>
        <translation>这些更改已经保存，无需恢复。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) restored; they are not saved yet.</source>
        <translation>
            <numerusform>已恢复 %Ln 个预案，尚未保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Unsaved changes of an earlier run cannot be restored: %1. The file is kept as %2.</source>
        <translation>无法恢复上次运行时未保存的更改：%1。该文件保留为 %2。</translation>
    </message>
    <message>
        <source>%1: the program ended before changes were saved. They were kept on %2.</source>
        <translation>%1：程序在保存更改之前已退出。更改保留于 %2。</translation>
    </message>
    <message numerus="yes">
        <source>%1: the program ended before changes of %Ln scheme(s) were saved. They were kept on %2.</source>
        <translation>
            <numerusform>%1：程序在保存 %Ln 个预案的更改之前已退出。更改保留于 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore them? Nothing is saved by that. &quot;Later&quot; asks again at the next start.</source>
        <translation>是否恢复？恢复不会保存任何内容。选择“稍后”将在下次启动时再次询问。</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>typing</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做%1(&amp;R)</translation>
    </message>
</context>
<context>
    <name>EventCategories</name>
    <message>
        <source>Alarm events</source>
        <translation>报警事件</translation>
    </message>
    <message>
        <source>Abnormal events</source>
        <translation>异常事件</translation>
    </message>
    <message>
        <source>Normal events</source>
        <translation>正常事件</translation>
    </message>
    <message>
        <source>Alarm inputs</source>
        <translation>报警输入</translation>
    </message>
    <message>
        <source>Unknown events</source>
        <translation>未知事件</translation>
    </message>
</context>
<context>
    <name>ExplainCommand</name>
    <message>
        <source>Tells what would happen if an event came at a time.</source>
        <translation>说明某一时间发生某事件时会怎样。</translation>
    </message>
    <message>
        <source>--source S --event TYPE --at TIME [--zone ID] [options]</source>
        <translation>--source 事件源 --event 类型 --at 时间 [--zone ID] [选项]</translation>
    </message>
    <message>
        <source>The time by the wall clock, like 2026-11-23T08:30.</source>
        <translation>当地钟表时间，例如 2026-11-23T08:30。</translation>
    </message>
    <message>
        <source>The time zone of the clock, like Europe/Rome; the computer&apos;s unless it is said here.</source>
        <translation>时间所在的时区，例如 Europe/Rome；不指定时为本计算机的时区。</translation>
    </message>
    <message>
        <source>--%1 is missing.</source>
        <translation>缺少 --%1。</translation>
    </message>
    <message>
        <source>The clock shows this time twice on that day; this is about the first. An offset, like &quot;+01:00&quot; behind the time, tells them apart.</source>
        <translation>当天时钟会两次显示此时间，这里指第一次。可在时间后加偏移量（例如“+01:00”）加以区分。</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>source and event, time</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>A device has one scheme for this event, whichever door it comes from.</source>
        <translation>无论来自哪个门，设备对此事件只有一个预案。</translation>
    </message>
    <message>
        <source>It does nothing.</source>
        <translation>不执行任何动作。</translation>
    </message>
    <message>
        <source>It does this:</source>
        <translation>执行以下动作：</translation>
    </message>
    <message>
        <source>The next change is at %1.</source>
        <translation>下次变化在 %1。</translation>
    </message>
    <message>
        <source>Nothing changes with time.</source>
        <translation>不随时间变化。</translation>
    </message>
</context>
<context>
    <name>ExplainPage</name>
    <message>
        <source>Explain</source>
        <translation>预案推演</translation>
    </message>
    <message>
        <source>What would happen if this event came at that time?</source>
        <translation>如果此事件在该时间发生，会怎样？</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>事件源(&amp;S)</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>事件源</translation>
    </message>
    <message>
        <source>&amp;Event</source>
        <translation>事件(&amp;E)</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>&amp;Time</source>
        <translation>时间(&amp;T)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>现在(&amp;N)</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>结论</translation>
    </message>
    <message>
        <source>Armed time of the day</source>
        <translation>当天布防时间</translation>
    </message>
    <message>
        <source>&amp;Reactions</source>
        <translation>联动动作(&amp;R)</translation>
    </message>
    <message>
        <source>Reactions</source>
        <translation>联动动作</translation>
    </message>
    <message>
        <source>Device/door or device/alarm input</source>
        <translation>设备/门或设备/报警输入</translation>
    </message>
    <message>
        <source>The site has no devices. Open a site with devices first.</source>
        <translation>站点中没有设备。请先打开有设备的站点。</translation>
    </message>
    <message>
        <source>Pick the source that the event comes from.</source>
        <translation>请选择事件的来源。</translation>
    </message>
    <message>
        <source>Pick the event.</source>
        <translation>请选择事件。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>day, armed time</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>A device has one scheme for this event, whichever door it comes from.</source>
        <translation>无论来自哪个门，设备对此事件只有一个预案。</translation>
    </message>
    <message>
        <source>The next change is at %1.</source>
        <translation>下次变化在 %1。</translation>
    </message>
    <message>
        <source>Nothing changes with time.</source>
        <translation>不随时间变化。</translation>
    </message>
    <message>
        <source>&amp;Reactions while it is armed</source>
        <translation>布防期间的联动动作(&amp;R)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>ExportCommand</name>
    <message>
        <source>Writes the schemes as a JSON text.</source>
        <translation>将预案写为 JSON 文本。</translation>
    </message>
    <message>
        <source>[--output FILE] [options]</source>
        <translation>[--output 文件] [选项]</translation>
    </message>
    <message>
        <source>File to write; without it the text goes to the standard output.</source>
        <translation>要写入的文件；不指定时文本写到标准输出。</translation>
    </message>
    <message>
        <source>Writing the schemes</source>
        <translation>正在写入预案</translation>
    </message>
    <message>
        <source>Schemes written: %1</source>
        <translation>已写入的预案：%1</translation>
    </message>
</context>
<context>
    <name>ExportSiteCommand</name>
    <message>
        <source>Writes the client&apos;s site as a table or a site file.</source>
        <translation>将客户端的站点写为表格或站点文件。</translation>
    </message>
    <message>
        <source>[--format csv|json] [--output FILE] [--data-dir DIR | --site FILE]</source>
        <translation>[--format csv|json] [--output 文件] [--data-dir 目录 | --site 文件]</translation>
    </message>
    <message>
        <source>The form; without it the one that goes with the file&apos;s name, or csv.</source>
        <translation>输出格式；不指定时按文件名确定，否则为 csv。</translation>
    </message>
    <message>
        <source>File to write; without it the site goes to the standard output.</source>
        <translation>要写入的文件；不指定时站点写到标准输出。</translation>
    </message>
    <message>
        <source>--format takes &quot;csv&quot; or &quot;json&quot;.</source>
        <translation>--format 须为“csv”或“json”。</translation>
    </message>
    <message>
        <source>--output names the site file itself.</source>
        <translation>--output 指定的就是站点文件本身。</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>source, event</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>place, day of the week</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>The scheme is switched on but never armed.</source>
        <translation>预案已启用，但从不布防。</translation>
    </message>
    <message>
        <source>The scheme is armed but does nothing.</source>
        <translation>预案已布防，但不执行任何动作。</translation>
    </message>
    <message>
        <source>The site has no such event source.</source>
        <translation>站点中没有此事件源。</translation>
    </message>
    <message>
        <source>The linked output %1 is not part of the site.</source>
        <translation>联动的输出 %1 不属于此站点。</translation>
    </message>
    <message>
        <source>The linked door %1 is not part of the site.</source>
        <translation>联动的门 %1 不属于此站点。</translation>
    </message>
    <message>
        <source>The linked video channel %1 is not part of the site.</source>
        <translation>联动的视频通道 %1 不属于此站点。</translation>
    </message>
    <message>
        <source>The output %1 stays on for %2 s, which is not within 5 to 43200 s.</source>
        <translation>输出 %1 持续 %2 秒，不在 5 到 43200 秒之内。</translation>
    </message>
    <message>
        <source>The day has %1 time regions; six is the most.</source>
        <translation>当天有 %1 个时段，最多为六个。</translation>
    </message>
    <message>
        <source>Time regions of the day overlap.</source>
        <translation>当天的时段有重叠。</translation>
    </message>
    <message>
        <source>Time regions of the day touch each other.</source>
        <translation>当天的时段首尾相接。</translation>
    </message>
    <message>
        <source>A time region of the day ends before it begins or lies outside the day.</source>
        <translation>当天某个时段的结束早于开始，或超出当天范围。</translation>
    </message>
    <message>
        <source>No scheme of this door is switched on.</source>
        <translation>此门未启用任何预案。</translation>
    </message>
    <message>
        <source>The scheme waits for events of a device that is offline.</source>
        <translation>预案等待的事件来自离线的设备。</translation>
    </message>
    <message>
        <source>Paint the hours in which it is to be armed, or switch it off.</source>
        <translation>请绘制需要布防的时间，或停用该预案。</translation>
    </message>
    <message>
        <source>Choose a sound, a mail or an output, or switch the scheme off.</source>
        <translation>请选择声音、邮件或输出，或停用该预案。</translation>
    </message>
    <message>
        <source>Delete the scheme, or bring the device back into the site.</source>
        <translation>请删除该预案，或将设备重新加入站点。</translation>
    </message>
    <message>
        <source>Remove the link, or bring the device back into the site.</source>
        <translation>请移除该联动，或将设备重新加入站点。</translation>
    </message>
    <message>
        <source>Set a time from 5 to 43200 s.</source>
        <translation>请设置 5 到 43200 秒的时间。</translation>
    </message>
    <message>
        <source>Open the day&apos;s details and confirm them; regions that belong together are joined.</source>
        <translation>请打开当天的详细设置并确认；相连的时段会合并。</translation>
    </message>
    <message>
        <source>Set the day&apos;s hours anew.</source>
        <translation>请重新设置当天的时间。</translation>
    </message>
    <message>
        <source>Switch on a scheme for the door if its events matter.</source>
        <translation>如果此门的事件重要，请为其启用预案。</translation>
    </message>
    <message>
        <source>Look after the device; until it answers, nothing is reported.</source>
        <translation>请检查该设备；在其恢复响应之前，不会上报任何事件。</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>Severity</source>
        <translation>严重程度</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>检查结果</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>处理建议</translation>
    </message>
</context>
<context>
    <name>GroupTreeCtrl</name>
    <message>
        <source>Search devices</source>
        <translation>搜索设备</translation>
    </message>
    <message>
        <source>Device tree</source>
        <translation>设备树</translation>
    </message>
</context>
<context>
    <name>HistoryCommand</name>
    <message>
        <source>Tells who changed what and when.</source>
        <translation>显示谁在何时更改了什么。</translation>
    </message>
    <message>
        <source>[STEP] [--limit N] [options]</source>
        <translation>[步骤] [--limit N] [选项]</translation>
    </message>
    <message>
        <source>Only so many of the newest steps.</source>
        <translation>仅显示最近的若干步骤。</translation>
    </message>
    <message>
        <source>--limit takes a whole number from 1.</source>
        <translation>--limit 须为不小于 1 的整数。</translation>
    </message>
    <message>
        <source>There is no step %1.</source>
        <translation>没有步骤 %1。</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>When</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Who</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>What</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Schemes</source>
        <translation>预案</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
</context>
<context>
    <name>HistoryPage</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>What was changed, when and by whom?</source>
        <translation>何人在何时更改了什么？</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Makes the schemes of this step what they were before it</source>
        <translation>将此步骤涉及的预案恢复到该步骤之前的状态</translation>
    </message>
    <message>
        <source>Changed schemes</source>
        <translation>已更改的预案</translation>
    </message>
    <message>
        <source>Pick a step to see what it has changed.</source>
        <translation>请选择步骤，以查看其更改内容。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) changed:</source>
        <translation>
            <numerusform>已更改 %Ln 个预案：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 schemes changed, the first %2 of them:</source>
        <translation>已更改 %1 个预案，前 %2 个为：</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>scheme, what has changed</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Take a step back</source>
        <translation>撤回步骤</translation>
    </message>
    <message numerus="yes">
        <source>Make the %Ln scheme(s) of the step of %1 what they were before it? Schemes that have changed since stay as they are. The pages are loaded anew.</source>
        <translation>
            <numerusform>要将 %1 的步骤所涉及的 %Ln 个预案恢复到该步骤之前的状态吗？此后又有更改的预案保持不变。页面将重新加载。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) were not taken back, because they have changed since:</source>
        <translation>
            <numerusform>有 %Ln 个预案之后又有更改，未撤回：</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Take back…</source>
        <translation>撤回(&amp;T)…</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
</context>
<context>
    <name>HistoryText</name>
    <message>
        <source>&quot;%1&quot; is no number of a step.</source>
        <translation>“%1”不是步骤编号。</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1  %2  %3, %4, schemes: %5</source>
        <comment>number, time, who, what</comment>
        <translation>%1  %2  %3，%4，预案：%5</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>No module is loaded; put a module file into the &quot;modules&quot; folder beside the program and start again.</source>
        <translation>未加载任何模块；请将模块文件放入程序旁的“modules”文件夹，然后重新启动。</translation>
    </message>
    <message>
        <source>The site has no devices; describe them in %1, or name another file with --site, and start again.</source>
        <translation>站点中没有设备；请在 %1 中描述设备，或用 --site 指定其他文件，然后重新启动。</translation>
    </message>
</context>
<context>
    <name>ImportCommand</name>
    <message>
        <source>Brings the schemes of a JSON text into the database.</source>
        <translation>将 JSON 文本中的预案导入数据库。</translation>
    </message>
    <message>
        <source>FILE --merge|--replace [--dry-run] [options]</source>
        <translation>文件 --merge|--replace [--dry-run] [选项]</translation>
    </message>
    <message>
        <source>The listed schemes replace those of the same source and event, all others stay.</source>
        <translation>列出的预案替换事件源和事件相同的预案，其他预案保留。</translation>
    </message>
    <message>
        <source>Afterwards there are exactly the listed schemes; all others are deleted.</source>
        <translation>导入后仅有列出的预案，其他预案全部删除。</translation>
    </message>
    <message>
        <source>Changes nothing and tells what would change; without --merge or --replace, what either would.</source>
        <translation>不做任何更改，只说明会有哪些更改；未指定 --merge 或 --replace 时，分别说明两者的结果。</translation>
    </message>
    <message>
        <source>--merge and --replace exclude each other.</source>
        <translation>--merge 和 --replace 不能同时使用。</translation>
    </message>
    <message>
        <source>Say whether the other schemes stay, --merge, or are deleted, --replace.</source>
        <translation>请指明其他预案是保留（--merge）还是删除（--replace）。</translation>
    </message>
    <message>
        <source>With --merge:</source>
        <translation>使用 --merge 时：</translation>
    </message>
    <message>
        <source>With --replace:</source>
        <translation>使用 --replace 时：</translation>
    </message>
    <message>
        <source>Reading the text</source>
        <translation>正在读取文本</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未做任何更改。</translation>
    </message>
</context>
<context>
    <name>ImportSiteCommand</name>
    <message>
        <source>Brings the devices of a table or site file into the client&apos;s site.</source>
        <translation>将表格或站点文件中的设备导入客户端的站点。</translation>
    </message>
    <message>
        <source>FILE [--dry-run] [--data-dir DIR | --site FILE] [options]</source>
        <translation>文件 [--dry-run] [--data-dir 目录 | --site 文件] [选项]</translation>
    </message>
    <message>
        <source>Changes nothing and tells what would change.</source>
        <translation>不做任何更改，只说明会有哪些更改。</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) are wrong.</source>
        <translation>
            <numerusform>另有 %n 行有错误。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未做任何更改。</translation>
    </message>
    <message>
        <source>The old site is kept in %1.</source>
        <translation>原站点保留在 %1 中。</translation>
    </message>
</context>
<context>
    <name>InsightPages</name>
    <message>
        <source>&amp;Explain</source>
        <translation>预案推演(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Coverage</source>
        <translation>布防覆盖(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>历史记录(&amp;H)</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXCustomDialog</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXDialogTitleBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>LXGUI::LXMessageBox</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
</context>
<context>
    <name>ListCommand</name>
    <message>
        <source>Lists the schemes.</source>
        <translation>列出预案。</translation>
    </message>
    <message>
        <source>[--source S] [--event TYPE] [--enabled] [options]</source>
        <translation>[--source 事件源] [--event 类型] [--enabled] [选项]</translation>
    </message>
    <message>
        <source>Only the schemes that are switched on.</source>
        <translation>仅列出已启用的预案。</translation>
    </message>
    <message>
        <source>on</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>off</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Schemes: %1, switched on: %2</source>
        <translation>预案：%1，已启用：%2</translation>
    </message>
</context>
<context>
    <name>LoadAnewOffer</name>
    <message>
        <source>Schemes have changed: load anew</source>
        <translation>预案已更改：重新加载</translation>
    </message>
    <message>
        <source>The open pages show the schemes as they were when they were loaded.</source>
        <translation>打开的页面显示的是加载时的预案。</translation>
    </message>
</context>
<context>
    <name>MailCheck</name>
    <message>
        <source>Enter a mail server, or switch mail off.</source>
        <translation>请输入邮件服务器，或关闭邮件发送。</translation>
    </message>
    <message>
        <source>The server is missing.</source>
        <translation>未填写服务器。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no host name and no address.</source>
        <translation>“%1”不是有效的主机名或地址。</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>端口必须为 1 到 65535。</translation>
    </message>
    <message>
        <source>The user name is too long or holds control characters.</source>
        <translation>用户名过长或含有控制字符。</translation>
    </message>
    <message>
        <source>The sender must be one mail address, like guard@example.com.</source>
        <translation>发件人必须是一个邮件地址，例如 guard@example.com。</translation>
    </message>
    <message>
        <source>The password is too long or holds control characters.</source>
        <translation>密码过长或含有控制字符。</translation>
    </message>
    <message>
        <source>Enter the password of the user, or leave the user empty.</source>
        <translation>请输入该用户的密码，或将用户名留空。</translation>
    </message>
    <message>
        <source>Enter at least one address that gets the mail.</source>
        <translation>请至少输入一个接收邮件的地址。</translation>
    </message>
    <message>
        <source>A server takes %1 recipients at most.</source>
        <translation>一个服务器最多 %1 个收件人。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no mail address like guard@example.com.</source>
        <translation>“%1”不是有效的邮件地址，正确格式例如 guard@example.com。</translation>
    </message>
    <message>
        <source>The name of the certificate file is too long or holds control characters.</source>
        <translation>证书文件名过长或含有控制字符。</translation>
    </message>
</context>
<context>
    <name>MailOutcome</name>
    <message>
        <source>The server says: %1</source>
        <translation>服务器返回：%1</translation>
    </message>
    <message>
        <source>%1 has taken the test mail for %2. Look into the mailbox; it can take a minute.</source>
        <translation>%1 已接收发给 %2 的测试邮件。请查看邮箱，可能需要等待一分钟。</translation>
    </message>
    <message>
        <source>%1 has taken the test mail, but offers no login: user and password were not used.</source>
        <translation>%1 已接收测试邮件，但不提供登录：未使用用户名和密码。</translation>
    </message>
    <message>
        <source>The test was stopped.</source>
        <translation>测试已停止。</translation>
    </message>
    <message>
        <source>The address %1 cannot be used. Enter it like guard@example.com.</source>
        <translation>无法使用地址 %1。请按 guard@example.com 的格式输入。</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check its name and the network connection.</source>
        <translation>找不到服务器“%1”。请检查服务器名称和网络连接。</translation>
    </message>
    <message>
        <source>Nothing answers on port %1 of %2. Check server and port; as a rule it is 587 with STARTTLS, 465 with TLS and 25 without encryption. A firewall can be in the way, too.</source>
        <translation>%2 的端口 %1 没有响应。请检查服务器和端口；通常 STARTTLS 为 587，TLS 为 465，不加密为 25。也可能被防火墙阻止。</translation>
    </message>
    <message>
        <source>%1 does not answer on port %2. Check port and encryption; a firewall can be in the way, too.</source>
        <translation>%1 在端口 %2 上没有响应。请检查端口和加密方式；也可能被防火墙阻止。</translation>
    </message>
    <message>
        <source>What answers on port %1 of %2 takes no mail. Check server, port and encryption.</source>
        <translation>%2 的端口 %1 上的服务不接收邮件。请检查服务器、端口和加密方式。</translation>
    </message>
    <message>
        <source>%1 offers no STARTTLS on port %2. Choose TLS with the port that goes with it, 465 as a rule.</source>
        <translation>%1 在端口 %2 上不提供 STARTTLS。请选择 TLS 及其对应端口，通常为 465。</translation>
    </message>
    <message>
        <source>No encrypted connection to port %1 of %2. Check the encryption: TLS goes with port 465 as a rule, STARTTLS with 587 and 25.</source>
        <translation>无法与 %2 的端口 %1 建立加密连接。请检查加密方式：TLS 通常对应端口 465，STARTTLS 对应 587 和 25。</translation>
    </message>
    <message>
        <source>The certificate of %1 is not trusted, so nothing was sent. Enter the server by the name that its certificate carries, or name the certificate file of your own authority.</source>
        <translation>%1 的证书不受信任，因此未发送任何内容。请按证书中的名称输入服务器，或指定您自己的证书颁发机构的证书文件。</translation>
    </message>
    <message>
        <source>The certificate file %1 cannot be used. Choose a file with certificates in the PEM form, or leave the field empty.</source>
        <translation>无法使用证书文件 %1。请选择 PEM 格式的证书文件，或将此项留空。</translation>
    </message>
    <message>
        <source>%1 offers no login that can be used. Many servers offer it with encryption only; choose STARTTLS or TLS, or leave user and password empty.</source>
        <translation>%1 不提供可用的登录方式。许多服务器仅在加密时提供登录；请选择 STARTTLS 或 TLS，或将用户名和密码留空。</translation>
    </message>
    <message>
        <source>%1 refuses the user &quot;%2&quot;. Check user and password; some services want a password of its own for programs.</source>
        <translation>%1 拒绝用户“%2”。请检查用户名和密码；有些服务要求程序使用专用密码。</translation>
    </message>
    <message>
        <source>%1 takes no mail from %2. Check the sender; often it must be the address of the user.</source>
        <translation>%1 不接收来自 %2 的邮件。请检查发件人；通常须为该用户的地址。</translation>
    </message>
    <message>
        <source>%1 takes no mail for %2. Check the address; mail to other places often needs user and password.</source>
        <translation>%1 不接收发给 %2 的邮件。请检查地址；发往外部的邮件通常需要用户名和密码。</translation>
    </message>
    <message>
        <source>%1 refuses the mail itself. Ask the administrator of the mail server.</source>
        <translation>%1 拒绝了邮件本身。请咨询邮件服务器管理员。</translation>
    </message>
    <message>
        <source>The connection to %1 broke off. Check port and encryption, and try again.</source>
        <translation>与 %1 的连接已中断。请检查端口和加密方式，然后重试。</translation>
    </message>
    <message>
        <source>The test mail could not be sent through %1: %2</source>
        <translation>无法通过 %1 发送测试邮件：%2</translation>
    </message>
</context>
<context>
    <name>MailSettingsDialog</name>
    <message>
        <source>Send &amp;mail when a scheme asks for it</source>
        <translation>预案要求时发送邮件(&amp;M)</translation>
    </message>
    <message>
        <source>Mail &amp;servers</source>
        <translation>邮件服务器(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>S&amp;erver:</source>
        <translation>服务器(&amp;E)：</translation>
    </message>
    <message>
        <source>mail.example.com</source>
        <translation>mail.example.com</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>用户名(&amp;U)：</translation>
    </message>
    <message>
        <source>empty: no authentication</source>
        <translation>留空：不验证身份</translation>
    </message>
    <message>
        <source>Se&amp;nder:</source>
        <translation>发件人(&amp;N)：</translation>
    </message>
    <message>
        <source>guard@example.com</source>
        <translation>guard@example.com</translation>
    </message>
    <message>
        <source>Mail settings</source>
        <translation>邮件设置</translation>
    </message>
    <message>
        <source>New server</source>
        <translation>新服务器</translation>
    </message>
    <message>
        <source>Mail servers</source>
        <translation>邮件服务器</translation>
    </message>
    <message>
        <source>En&amp;cryption:</source>
        <translation>加密(&amp;C)：</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>Without encryption anyone on the way can read the password.</source>
        <translation>不加密时，传输途中的任何人都能读到密码。</translation>
    </message>
    <message>
        <source>Recip&amp;ients:</source>
        <translation>收件人(&amp;I)：</translation>
    </message>
    <message>
        <source>desk@example.com, chief@example.com</source>
        <translation>desk@example.com, chief@example.com</translation>
    </message>
    <message>
        <source>Certi&amp;ficates:</source>
        <translation>证书(&amp;F)：</translation>
    </message>
    <message>
        <source>empty: those of the system</source>
        <translation>留空：使用系统证书</translation>
    </message>
    <message>
        <source>Send a &amp;test mail</source>
        <translation>发送测试邮件(&amp;T)</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
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
        <translation>证书文件</translation>
    </message>
    <message>
        <source>Certificates (*.pem *.crt *.cer);;All files (*)</source>
        <translation>证书 (*.pem *.crt *.cer);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Alarm schemes</source>
        <translation>报警预案</translation>
    </message>
    <message>
        <source>Test mail of the alarm client</source>
        <translation>报警客户端测试邮件</translation>
    </message>
    <message>
        <source>This mail tests the mail settings of the alarm client on %1.
If you can read it, mail about alarms will arrive here.
</source>
        <translation>此邮件用于测试 %1 上报警客户端的邮件设置。
如果您能看到此邮件，报警邮件即可送达此处。
</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Sending a test mail through %1…</source>
        <translation>正在通过 %1 发送测试邮件…</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>设置(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Close tab</source>
        <translation>关闭标签页(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Mail…</source>
        <translation>邮件(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>Open &amp;data directory</source>
        <translation>打开数据目录(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Module %1: %2</source>
        <translation>模块 %1：%2</translation>
    </message>
    <message>
        <source>There is no module &quot;%1&quot;.</source>
        <translation>没有模块“%1”。</translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln device(s)</source>
        <translation>
            <numerusform>%1：%Ln 个设备</numerusform>
        </translation>
    </message>
    <message>
        <source>ACS Client</source>
        <translation>ACS 客户端</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>语言将在下次启动时更改。</translation>
    </message>
    <message>
        <source>The theme changes at the next start.</source>
        <translation>主题将在下次启动时更改。</translation>
    </message>
    <message>
        <source>About ACS Client</source>
        <translation>关于 ACS 客户端</translation>
    </message>
    <message>
        <source>ACS Client %1
Configures the alarm schemes of an access-control site.

Data directory: %2</source>
        <translation>ACS 客户端 %1
配置门禁站点的报警预案。

数据目录：%2</translation>
    </message>
    <message>
        <source>The data directory is %1</source>
        <translation>数据目录为 %1</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>S&amp;chemes</source>
        <translation>预案(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Load anew</source>
        <translation>重新加载(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>查找(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Import site…</source>
        <translation>导入站点(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export site…</source>
        <translation>导出站点(&amp;E)…</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>%1[*] - ACS Client</source>
        <translation>%1[*] - ACS 客户端</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) on</source>
        <translation>
            <numerusform>已启用 %Ln 个预案</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MakeSiteCommand</name>
    <message>
        <source>Writes the site file of a made-up site.</source>
        <translation>写出一个虚构站点的站点文件。</translation>
    </message>
    <message>
        <source>Number of doors, 1 to %1.</source>
        <translation>门的数量，1 到 %1。</translation>
    </message>
    <message>
        <source>Which of the many sites of that size, 0 to 4294967295; the same seed gives the same site.</source>
        <translation>选择该规模的哪一个站点，0 到 4294967295；种子相同，站点相同。</translation>
    </message>
    <message>
        <source>File to write; without it the site goes to the standard output.</source>
        <translation>要写入的文件；不指定时站点写到标准输出。</translation>
    </message>
    <message>
        <source>--doors is missing.</source>
        <translation>缺少 --doors。</translation>
    </message>
    <message>
        <source>--doors takes a whole number from 1 to %1.</source>
        <translation>--doors 须为 1 到 %1 的整数。</translation>
    </message>
    <message>
        <source>--seed takes a whole number from 0 to 4294967295.</source>
        <translation>--seed 须为 0 到 4294967295 的整数。</translation>
    </message>
    <message>
        <source>--doors N [--seed S] [--output FILE]</source>
        <translation>--doors N [--seed S] [--output 文件]</translation>
    </message>
</context>
<context>
    <name>MomentArgument</name>
    <message>
        <source>There is no time zone &quot;%1&quot;.</source>
        <translation>没有时区“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date and time; they are written like 2026-11-23T08:30.</source>
        <translation>“%1”不是有效的日期和时间，格式例如 2026-11-23T08:30。</translation>
    </message>
    <message>
        <source>The clock skips %1 in the time zone %2.</source>
        <translation>在时区 %2 中，时钟会跳过 %1。</translation>
    </message>
</context>
<context>
    <name>PageTabs</name>
    <message>
        <source>Home</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Close %1</source>
        <translation>关闭%1</translation>
    </message>
    <message>
        <source>● %1</source>
        <comment>a tab with unsaved changes</comment>
        <translation>● %1</translation>
    </message>
    <message>
        <source>Changes are not saved</source>
        <translation>更改未保存</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1，未保存</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>the module key &quot;%1&quot; is taken by %2</source>
        <translation>模块键“%1”已被 %2 占用</translation>
    </message>
    <message>
        <source>the module gives no page</source>
        <translation>模块未提供页面</translation>
    </message>
    <message>
        <source>the module failed: %1</source>
        <translation>模块出错：%1</translation>
    </message>
    <message>
        <source>the module failed</source>
        <translation>模块出错</translation>
    </message>
    <message>
        <source>the file is no module (%1)</source>
        <translation>该文件不是模块（%1）</translation>
    </message>
    <message>
        <source>the file cannot be loaded (%1)</source>
        <translation>无法加载该文件（%1）</translation>
    </message>
    <message>
        <source>the module gives no root object</source>
        <translation>模块未提供根对象</translation>
    </message>
    <message>
        <source>the module does not offer the interface %1</source>
        <translation>模块未提供接口 %1</translation>
    </message>
    <message>
        <source>the module has no key</source>
        <translation>模块没有键</translation>
    </message>
    <message>
        <source>the module refuses to be loaded</source>
        <translation>模块拒绝加载</translation>
    </message>
    <message>
        <source>the module refuses to start</source>
        <translation>模块拒绝启动</translation>
    </message>
    <message>
        <source>the module gives no user interface</source>
        <translation>模块未提供用户界面</translation>
    </message>
    <message>
        <source>the module describes no page</source>
        <translation>模块未描述页面</translation>
    </message>
    <message>
        <source>the module states no readable platform version</source>
        <translation>模块未标明可读的平台版本</translation>
    </message>
    <message>
        <source>the module is built for version %1 of the platform, this client has %2; it needs a build for this version</source>
        <translation>该模块为平台版本 %1 构建，本客户端为 %2；需要适用于此版本的构建</translation>
    </message>
    <message>
        <source>the module needs version %1 of the platform, this client has %2; the client is too old</source>
        <translation>该模块需要平台版本 %1，本客户端为 %2；客户端版本过旧</translation>
    </message>
</context>
<context>
    <name>ProgressLine</name>
    <message>
        <source>%1: %2 %</source>
        <translation>%1：%2 %</translation>
    </message>
    <message>
        <source>%1: %2 s</source>
        <translation>%1：%2 秒</translation>
    </message>
</context>
<context>
    <name>QAlarmCopyToPopup</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Copy to</source>
        <translation>复制到</translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Target(s)</source>
        <translation>
            <numerusform>复制到 %Ln 个目标</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QAlarmDayDetailEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Region1</source>
        <translation>时段1</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>Region2</source>
        <translation>时段2</translation>
    </message>
    <message>
        <source>Region3</source>
        <translation>时段3</translation>
    </message>
    <message>
        <source>Region4</source>
        <translation>时段4</translation>
    </message>
    <message>
        <source>Region5</source>
        <translation>时段5</translation>
    </message>
    <message>
        <source>Region6</source>
        <translation>时段6</translation>
    </message>
    <message>
        <source>Check All</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>SUN</source>
        <translation>周日</translation>
    </message>
    <message>
        <source>MON</source>
        <translation>周一</translation>
    </message>
    <message>
        <source>TUE</source>
        <translation>周二</translation>
    </message>
    <message>
        <source>WED</source>
        <translation>周三</translation>
    </message>
    <message>
        <source>THU</source>
        <translation>周四</translation>
    </message>
    <message>
        <source>FRI</source>
        <translation>周五</translation>
    </message>
    <message>
        <source>SAT</source>
        <translation>周六</translation>
    </message>
    <message>
        <source>At %1 row, the end time is earlier than the start time.</source>
        <translation>第 %1 行的结束时间早于开始时间。</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>时段</translation>
    </message>
    <message>
        <source>Region %1 begin</source>
        <translation>时段 %1 开始时间</translation>
    </message>
    <message>
        <source>Region %1 end</source>
        <translation>时段 %1 结束时间</translation>
    </message>
</context>
<context>
    <name>QAlarmDayEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Time Editor</source>
        <translation>时间编辑</translation>
    </message>
    <message>
        <source>6 regions at most.</source>
        <translation>最多 6 个时段。</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细设置</translation>
    </message>
    <message>
        <source>Details for %1</source>
        <translation>%1详细设置</translation>
    </message>
</context>
<context>
    <name>QAlarmDefenceTimeEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Week Plan</source>
        <translation>周计划</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Lock all days</source>
        <translation>锁定整周</translation>
    </message>
    <message>
        <source>Lock %1</source>
        <translation>锁定%1</translation>
    </message>
</context>
<context>
    <name>QAlarmListItem</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>alarm scheme on</source>
        <translation>报警预案已启用</translation>
    </message>
</context>
<context>
    <name>QAlarmListItemView</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
</context>
<context>
    <name>QAlarmNotifyEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Alarm Sound:</source>
        <translation>报警声音：</translation>
    </message>
    <message>
        <source>EMap Twinkle:</source>
        <translation>电子地图闪烁：</translation>
    </message>
    <message>
        <source>Send Mail:</source>
        <translation>发送邮件：</translation>
    </message>
</context>
<context>
    <name>QAlarmOutEditor</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Auto Open:</source>
        <translation>自动开启：</translation>
    </message>
    <message>
        <source>Last Time:</source>
        <translation>持续时间：</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>%1s - 43200s</source>
        <translation>%1秒 - 43200秒</translation>
    </message>
    <message>
        <source>Tick an output in the tree and click it to see its settings here.</source>
        <translation>在设备树中勾选并单击报警输出，即可在此查看其设置。</translation>
    </message>
    <message>
        <source>Click the output again to see its settings.</source>
        <translation>再次单击该报警输出以查看其设置。</translation>
    </message>
</context>
<context>
    <name>QCommon</name>
    <message>
        <source>External Alarm</source>
        <translation>外部报警</translation>
    </message>
    <message>
        <source>Door Forced Open</source>
        <translation>门被强行打开</translation>
    </message>
    <message>
        <source>Duress Code Entered</source>
        <translation>胁迫密码</translation>
    </message>
    <message>
        <source>Duress Fingerprint</source>
        <translation>胁迫指纹</translation>
    </message>
    <message>
        <source>Door Open Too Long</source>
        <translation>开门超时</translation>
    </message>
    <message>
        <source>Controller Tampered</source>
        <translation>控制器防拆报警</translation>
    </message>
    <message>
        <source>Card Reader Tampered</source>
        <translation>读卡器防拆报警</translation>
    </message>
    <message>
        <source>Fire Alarm Input</source>
        <translation>火警输入</translation>
    </message>
    <message>
        <source>Emergency Button</source>
        <translation>紧急按钮</translation>
    </message>
    <message>
        <source>Card on Block List</source>
        <translation>黑名单卡</translation>
    </message>
    <message>
        <source>Too Many Attempts</source>
        <translation>尝试次数过多</translation>
    </message>
    <message>
        <source>Anti-Passback Violation</source>
        <translation>违反反潜回规则</translation>
    </message>
    <message>
        <source>Interlock Violation</source>
        <translation>违反互锁规则</translation>
    </message>
    <message>
        <source>Unknown Card</source>
        <translation>未知卡</translation>
    </message>
    <message>
        <source>Card Expired</source>
        <translation>卡已过期</translation>
    </message>
    <message>
        <source>Card Not Yet Valid</source>
        <translation>卡未到有效期</translation>
    </message>
    <message>
        <source>No Access at This Door</source>
        <translation>无此门权限</translation>
    </message>
    <message>
        <source>Outside Access Hours</source>
        <translation>非通行时段</translation>
    </message>
    <message>
        <source>Wrong PIN</source>
        <translation>密码错误</translation>
    </message>
    <message>
        <source>Unknown Fingerprint</source>
        <translation>未知指纹</translation>
    </message>
    <message>
        <source>Unknown Face</source>
        <translation>未知人脸</translation>
    </message>
    <message>
        <source>First-Card Rule Not Met</source>
        <translation>不满足首卡规则</translation>
    </message>
    <message>
        <source>Second Person Missing</source>
        <translation>缺少第二人验证</translation>
    </message>
    <message>
        <source>Door Not Closed</source>
        <translation>门未关闭</translation>
    </message>
    <message>
        <source>Door Lock Fault</source>
        <translation>门锁故障</translation>
    </message>
    <message>
        <source>Access by Card</source>
        <translation>刷卡开门</translation>
    </message>
    <message>
        <source>Access by Card and PIN</source>
        <translation>刷卡加密码开门</translation>
    </message>
    <message>
        <source>Access by Fingerprint</source>
        <translation>指纹开门</translation>
    </message>
    <message>
        <source>Access by Face</source>
        <translation>人脸开门</translation>
    </message>
    <message>
        <source>Access by PIN</source>
        <translation>密码开门</translation>
    </message>
    <message>
        <source>Access by First Card</source>
        <translation>首卡开门</translation>
    </message>
    <message>
        <source>Exit Button Pressed</source>
        <translation>出门按钮开门</translation>
    </message>
    <message>
        <source>Door Opened</source>
        <translation>门打开</translation>
    </message>
    <message>
        <source>Door Closed</source>
        <translation>门关闭</translation>
    </message>
    <message>
        <source>Opened by Operator</source>
        <translation>操作员开门</translation>
    </message>
    <message>
        <source>Opened by Schedule</source>
        <translation>按计划开门</translation>
    </message>
    <message>
        <source>Locked by Schedule</source>
        <translation>按计划锁门</translation>
    </message>
    <message>
        <source>Event %1</source>
        <translation>事件 %1</translation>
    </message>
</context>
<context>
    <name>RestoreCommand</name>
    <message>
        <source>Puts a copy of a database back.</source>
        <translation>恢复数据库的备份。</translation>
    </message>
    <message>
        <source>FILE [options]</source>
        <translation>文件 [选项]</translation>
    </message>
    <message>
        <source>This is the database itself.</source>
        <translation>这就是数据库本身。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未更改任何内容。</translation>
    </message>
    <message>
        <source>Schemes: %1</source>
        <translation>预案：%1</translation>
    </message>
    <message>
        <source>The damaged database is kept as %1</source>
        <translation>已损坏的数据库保留为 %1</translation>
    </message>
</context>
<context>
    <name>RevertCommand</name>
    <message>
        <source>Takes a step of the history back.</source>
        <translation>撤回历史记录中的一个步骤。</translation>
    </message>
    <message>
        <source>STEP [options]</source>
        <translation>步骤 [选项]</translation>
    </message>
    <message>
        <source>There is no step %1.</source>
        <translation>没有步骤 %1。</translation>
    </message>
    <message>
        <source>Schemes taken back: %1</source>
        <translation>已撤回的预案：%1</translation>
    </message>
    <message>
        <source>Changed since, and left as they are: %1</source>
        <translation>此后已更改、保持原样：%1</translation>
    </message>
</context>
<context>
    <name>SaveIndicator</name>
    <message>
        <source>Schemes saved</source>
        <translation>预案已保存</translation>
    </message>
    <message>
        <source>Saving…</source>
        <translation>正在保存…</translation>
    </message>
</context>
<context>
    <name>SchemeActionText</name>
    <message>
        <source>Change Scheme</source>
        <translation>更改预案</translation>
    </message>
    <message>
        <source>Switch Scheme On</source>
        <translation>启用预案</translation>
    </message>
    <message>
        <source>Switch Scheme Off</source>
        <translation>停用预案</translation>
    </message>
    <message>
        <source>Switch Alarm Sound On</source>
        <translation>开启报警声音</translation>
    </message>
    <message>
        <source>Switch Alarm Sound Off</source>
        <translation>关闭报警声音</translation>
    </message>
    <message>
        <source>Switch Mail On</source>
        <translation>开启邮件</translation>
    </message>
    <message>
        <source>Switch Mail Off</source>
        <translation>关闭邮件</translation>
    </message>
    <message numerus="yes">
        <source>Copy to %Ln Source(s)</source>
        <translation>
            <numerusform>复制到 %Ln 个事件源</numerusform>
        </translation>
    </message>
    <message>
        <source>Restore Unsaved Edits</source>
        <translation>恢复未保存的编辑</translation>
    </message>
    <message numerus="yes">
        <source>Link %Ln Output(s)</source>
        <translation>
            <numerusform>联动 %Ln 个报警输出</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlink %Ln Output(s)</source>
        <translation>
            <numerusform>取消联动 %Ln 个报警输出</numerusform>
        </translation>
    </message>
    <message>
        <source>Change Outputs</source>
        <translation>更改报警输出</translation>
    </message>
    <message>
        <source>Change Output Settings</source>
        <translation>更改报警输出设置</translation>
    </message>
    <message numerus="yes">
        <source>Copy %1 to %n Day(s)</source>
        <translation>
            <numerusform>将%1复制到 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>设置%1</translation>
    </message>
    <message numerus="yes">
        <source>Set %n Day(s)</source>
        <translation>
            <numerusform>设置 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Paint %1</source>
        <translation>绘制%1</translation>
    </message>
    <message numerus="yes">
        <source>Paint %n Day(s)</source>
        <translation>
            <numerusform>绘制 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Erase %1</source>
        <translation>擦除%1</translation>
    </message>
    <message numerus="yes">
        <source>Erase %n Day(s)</source>
        <translation>
            <numerusform>擦除 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>更改%1</translation>
    </message>
    <message numerus="yes">
        <source>Change %n Day(s)</source>
        <translation>
            <numerusform>更改 %n 天</numerusform>
        </translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
</context>
<context>
    <name>SchemeConflictDialog</name>
    <message>
        <source>&amp;Keep their changes and save only mine</source>
        <translation>保留对方的更改，仅保存我的更改(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Load their schemes and discard my changes</source>
        <translation>加载对方的预案，放弃我的更改(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Save my schemes over theirs</source>
        <translation>用我的预案覆盖对方的预案(&amp;S)</translation>
    </message>
    <message>
        <source>Schemes were changed elsewhere</source>
        <translation>预案已在别处更改</translation>
    </message>
    <message numerus="yes">
        <source>Another program has changed %Ln scheme(s) since they were loaded.</source>
        <translation>
            <numerusform>自加载以来，另一个程序已更改 %Ln 个预案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>You have changed %Ln of them too; there, saving writes yours.</source>
        <translation>
            <numerusform>其中 %Ln 个您也做了更改；保存时将写入您的更改。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SchemeDamageDialog</name>
    <message>
        <source>&amp;Leave it as it is, to look only</source>
        <translation>保持原样，仅供查看(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Start with no schemes</source>
        <translation>以无预案状态启动(&amp;S)</translation>
    </message>
    <message>
        <source>The scheme database is damaged</source>
        <translation>预案数据库已损坏</translation>
    </message>
    <message>
        <source>The file %1 is damaged. What can still be read of it is shown; nothing can be saved.</source>
        <translation>文件 %1 已损坏。仅显示仍可读取的内容，无法保存任何更改。</translation>
    </message>
    <message>
        <source>Whatever you choose, the damaged file is kept.</source>
        <translation>无论如何选择，已损坏的文件都会保留。</translation>
    </message>
    <message>
        <source>There is no sound backup that could take its place.</source>
        <translation>没有可用于替换的完好备份。</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Restore the backup of %1 with %Ln scheme(s)</source>
        <translation>
            <numerusform>恢复 %1 的备份，含 %Ln 个预案(&amp;R)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SchemeExplanation</name>
    <message>
        <source>The scheme is switched off.</source>
        <translation>预案已停用。</translation>
    </message>
    <message>
        <source>The scheme is not armed at this time; it will be from %1.</source>
        <translation>预案此时未布防，将从 %1 起布防。</translation>
    </message>
    <message>
        <source>The scheme is switched on but never armed.</source>
        <translation>预案已启用，但从不布防。</translation>
    </message>
    <message>
        <source>The scheme is armed since %1 until %2.</source>
        <translation>预案已布防，从 %1 到 %2。</translation>
    </message>
    <message>
        <source>The scheme is armed all the time.</source>
        <translation>预案全天候布防。</translation>
    </message>
    <message>
        <source>There is no scheme for this event.</source>
        <translation>此事件没有预案。</translation>
    </message>
    <message>
        <source>Such an event does not happen there.</source>
        <translation>此处不会发生这样的事件。</translation>
    </message>
</context>
<context>
    <name>SchemeFileProblem</name>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>SchemeFiles</name>
    <message>
        <source>there is no such file</source>
        <translation>没有该文件</translation>
    </message>
    <message>
        <source>this is no file</source>
        <translation>这不是文件</translation>
    </message>
</context>
<context>
    <name>SchemeHistoryReader</name>
    <message>
        <source>There is no history yet; it begins with the next save.</source>
        <translation>尚无历史记录；下次保存时开始记录。</translation>
    </message>
    <message>
        <source>The history cannot be read: %1</source>
        <translation>无法读取历史记录：%1</translation>
    </message>
    <message>
        <source>beginning</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>外部更改</translation>
    </message>
    <message>
        <source>taken back</source>
        <translation>已撤回</translation>
    </message>
    <message>
        <source>imported</source>
        <translation>已导入</translation>
    </message>
    <message>
        <source>restored</source>
        <translation>已恢复</translation>
    </message>
</context>
<context>
    <name>SchemeInput</name>
    <message>
        <source>The event source, by its key or as &quot;device/door&quot;.</source>
        <translation>事件源，用其键或“设备/门”表示。</translation>
    </message>
    <message>
        <source>The event type, by its number or its name.</source>
        <translation>事件类型，用其编号或名称表示。</translation>
    </message>
    <message>
        <source>There is no event type &quot;%1&quot;.</source>
        <translation>没有事件类型“%1”。</translation>
    </message>
</context>
<context>
    <name>SchemeSaving</name>
    <message>
        <source>Another program has changed the schemes.</source>
        <translation>另一个程序已更改预案。</translation>
    </message>
    <message>
        <source>The stored schemes are no longer those that were loaded.</source>
        <translation>已存储的预案与加载的预案不再相同。</translation>
    </message>
</context>
<context>
    <name>SchemeStoreOutcome</name>
    <message>
        <source>%1 %2</source>
        <comment>what happened, what to do next</comment>
        <translation>%1%2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) loaded.</source>
        <translation>
            <numerusform>已加载 %Ln 个预案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) saved.</source>
        <translation>
            <numerusform>已保存 %Ln 个预案。</numerusform>
        </translation>
    </message>
    <message>
        <source>The schemes could not be loaded completely: %1</source>
        <translation>预案未能全部加载：%1</translation>
    </message>
    <message>
        <source>Nothing was saved: %1</source>
        <translation>未保存任何内容：%1</translation>
    </message>
    <message>
        <source>Nothing was saved, because schemes that were not loaded would be switched off. %1</source>
        <translation>未保存任何内容，否则未加载的预案会被关闭。%1</translation>
    </message>
    <message>
        <source>the scheme database cannot be opened.</source>
        <translation>无法打开预案数据库。</translation>
    </message>
    <message>
        <source>another program is using the scheme database.</source>
        <translation>另一个程序正在使用预案数据库。</translation>
    </message>
    <message>
        <source>the scheme database or its folder is write-protected.</source>
        <translation>预案数据库或其所在文件夹被写保护。</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>the scheme database is damaged.</source>
        <translation>预案数据库已损坏。</translation>
    </message>
    <message>
        <source>the scheme database was moved or replaced while the program was running.</source>
        <translation>程序运行期间预案数据库被移动或替换。</translation>
    </message>
    <message>
        <source>the schemes have not been loaded yet.</source>
        <translation>预案尚未加载。</translation>
    </message>
    <message>
        <source>an event source holds a character that cannot be stored.</source>
        <translation>事件源含有无法存储的字符。</translation>
    </message>
    <message>
        <source>the scheme database reported an error.</source>
        <translation>预案数据库报告错误。</translation>
    </message>
    <message>
        <source>Close the other program, then start this program again.</source>
        <translation>请关闭另一个程序，然后重新启动本程序。</translation>
    </message>
    <message>
        <source>Check the rights on the database folder, then start this program again.</source>
        <translation>请检查数据库文件夹的权限，然后重新启动本程序。</translation>
    </message>
    <message>
        <source>Free some space, then start this program again.</source>
        <translation>请释放一些磁盘空间，然后重新启动本程序。</translation>
    </message>
    <message>
        <source>The file was left as it is. Restore a copy of it, then start this program again.</source>
        <translation>文件保持原样。请恢复其备份，然后重新启动本程序。</translation>
    </message>
    <message>
        <source>Start this program again; if it happens again, see the log file.</source>
        <translation>请重新启动本程序；如再次发生，请查看日志文件。</translation>
    </message>
    <message>
        <source>Your changes are still here. Close the other program, then save again.</source>
        <translation>您的更改仍然保留。请关闭另一个程序，然后再次保存。</translation>
    </message>
    <message>
        <source>Your changes are still here. Check the rights on the database folder, then save again.</source>
        <translation>您的更改仍然保留。请检查数据库文件夹的权限，然后再次保存。</translation>
    </message>
    <message>
        <source>Your changes are still here. Free some space, then save again.</source>
        <translation>您的更改仍然保留。请释放一些磁盘空间，然后再次保存。</translation>
    </message>
    <message>
        <source>Your changes are still here. Put the file back, then save again.</source>
        <translation>您的更改仍然保留。请将文件放回原处，然后再次保存。</translation>
    </message>
    <message>
        <source>Restore a copy of the file, then start this program again.</source>
        <translation>请恢复该文件的备份，然后重新启动本程序。</translation>
    </message>
    <message>
        <source>Your changes are still here. Save again; if it happens again, see the log file.</source>
        <translation>您的更改仍然保留。请再次保存；如再次发生，请查看日志文件。</translation>
    </message>
    <message>
        <source>No scheme has changed; nothing had to be saved.</source>
        <translation>预案没有更改，无需保存。</translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) stay as another program has saved them. To see them here, load anew.</source>
        <translation>
            <numerusform>%Ln 个预案保持另一个程序所保存的内容。要在此处查看，请重新加载。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) taken back.</source>
        <translation>
            <numerusform>已撤回 %Ln 个预案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln scheme(s) stay as they are, because they have changed since.</source>
        <translation>
            <numerusform>%Ln 个预案此后已更改，保持原样。</numerusform>
        </translation>
    </message>
    <message>
        <source>The history does not tell of it, because its file cannot be written.</source>
        <translation>历史记录未记载此次操作，因为无法写入其文件。</translation>
    </message>
    <message>
        <source>No backup could be made before: %1</source>
        <translation>事先未能创建备份：%1</translation>
    </message>
    <message>
        <source>The program did not end properly last time. The scheme database was checked: it is sound, but it holds %1 row(s) that belong to no scheme; they are left out.</source>
        <translation>程序上次未正常退出。已检查预案数据库：数据库完好，但有 %1 行不属于任何预案，已忽略。</translation>
    </message>
    <message numerus="yes">
        <source>The backup of %1 with %Ln scheme(s) was restored.</source>
        <translation>
            <numerusform>已恢复 %1 的备份，含 %Ln 个预案。</numerusform>
        </translation>
    </message>
    <message>
        <source>The program starts without schemes.</source>
        <translation>程序以无预案状态启动。</translation>
    </message>
    <message>
        <source>The damaged file was kept as %1.</source>
        <translation>已损坏的文件保留为 %1。</translation>
    </message>
    <message>
        <source>The scheme database is sound again; nothing was changed.</source>
        <translation>预案数据库已恢复完好，未更改任何内容。</translation>
    </message>
    <message>
        <source>The damaged scheme database was left as it is: %1</source>
        <translation>已损坏的预案数据库保持原样：%1</translation>
    </message>
    <message>
        <source>another program has changed the schemes.</source>
        <translation>另一个程序已更改预案。</translation>
    </message>
    <message>
        <source>the history does not tell what that step has changed.</source>
        <translation>历史记录未记载该步骤更改的内容。</translation>
    </message>
    <message>
        <source>another program has switched the scheme database to a journal that is not safe here, and still uses it.</source>
        <translation>另一个程序已将预案数据库切换为在此处不安全的日志模式，并且仍在使用该数据库。</translation>
    </message>
    <message>
        <source>the folder for backups cannot be written.</source>
        <translation>无法写入备份文件夹。</translation>
    </message>
    <message>
        <source>Your changes are still here. Save again to choose what is kept.</source>
        <translation>您的更改仍然保留。请再次保存，以选择要保留的内容。</translation>
    </message>
</context>
<context>
    <name>SchemeTextHandler</name>
    <message>
        <source>there are more problems; the rest was not looked at</source>
        <translation>还有更多问题，其余内容未检查</translation>
    </message>
    <message>
        <source>a day must be a list</source>
        <translation>每一天必须是列表</translation>
    </message>
    <message>
        <source>the entries of this list must be objects</source>
        <translation>此列表的条目必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a whole number from %2 to %3</source>
        <translation>“%1”必须是 %2 到 %3 的整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be true or false</source>
        <translation>“%1”必须是 true 或 false</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a list</source>
        <translation>“%1”必须是列表</translation>
    </message>
    <message>
        <source>this is no file of alarm schemes</source>
        <translation>这不是报警预案文件</translation>
    </message>
    <message>
        <source>holds half a character</source>
        <translation>含有不完整的字符</translation>
    </message>
    <message>
        <source>the text of &quot;%1&quot; %2</source>
        <comment>a field; what is wrong with its text</comment>
        <translation>“%1”的文本%2</translation>
    </message>
    <message>
        <source>this is a file of version %1; only version %2 can be read</source>
        <translation>此文件的版本为 %1，只能读取版本 %2</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot; here</source>
        <translation>此处没有字段“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here twice</source>
        <translation>“%1”在此处出现两次</translation>
    </message>
    <message>
        <source>this is nested too deep for a file of alarm schemes</source>
        <translation>嵌套过深，不是有效的报警预案文件</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>&quot;windowID&quot; must be from 0 to %1</source>
        <translation>“windowID”必须是 0 到 %1</translation>
    </message>
    <message>
        <source>the cell %1 stands here twice</source>
        <translation>单元格 %1 在此处出现两次</translation>
    </message>
    <message>
        <source>the window %1 stands here twice</source>
        <translation>窗口 %1 在此处出现两次</translation>
    </message>
    <message>
        <source>the output &quot;%1&quot; is linked twice</source>
        <translation>报警输出“%1”重复联动</translation>
    </message>
    <message>
        <source>the door &quot;%1&quot; is no whole number</source>
        <translation>门“%1”不是整数</translation>
    </message>
    <message>
        <source>the door %1 is linked twice</source>
        <translation>门 %1 重复联动</translation>
    </message>
    <message>
        <source>a region from %1 to %2 is none</source>
        <translation>从 %1 到 %2 不是有效时段</translation>
    </message>
    <message>
        <source>&quot;defenceTime&quot; must be a list of seven lists</source>
        <translation>“defenceTime”必须是由七个列表组成的列表</translation>
    </message>
    <message>
        <source>the cell %1 lies outside the layout</source>
        <translation>单元格 %1 超出布局范围</translation>
    </message>
    <message>
        <source>the window %1 is none of the cells in use</source>
        <translation>窗口 %1 不属于正在使用的单元格</translation>
    </message>
    <message>
        <source>the scheme %1, event type %2, is listed twice</source>
        <translation>预案 %1（事件类型 %2）重复列出</translation>
    </message>
</context>
<context>
    <name>SchemeTextReader</name>
    <message>
        <source>the text is not in UTF-8</source>
        <translation>文本不是 UTF-8 编码</translation>
    </message>
    <message>
        <source>the text could not be read to its end: %1</source>
        <translation>无法将文本读取完毕：%1</translation>
    </message>
    <message>
        <source>something follows after the end</source>
        <translation>结束之后还有内容</translation>
    </message>
    <message>
        <source>the text is empty</source>
        <translation>文本为空</translation>
    </message>
    <message>
        <source>a text is not valid UTF-8, or holds an escape or a control character that is not allowed</source>
        <translation>文本不是有效的 UTF-8，或含有不允许的转义或控制字符</translation>
    </message>
    <message>
        <source>a number has too many digits</source>
        <translation>数字的位数过多</translation>
    </message>
    <message>
        <source>the text ends too early</source>
        <translation>文本提前结束</translation>
    </message>
    <message>
        <source>this is not valid JSON</source>
        <translation>不是有效的 JSON</translation>
    </message>
</context>
<context>
    <name>SchemeTextRules</name>
    <message>
        <source>holds a double quote or a null character</source>
        <translation>含有双引号或空字符</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>超过 %1 个字符</translation>
    </message>
    <message>
        <source>is a word that the database keeps for itself</source>
        <translation>是数据库的保留字</translation>
    </message>
</context>
<context>
    <name>SchemeTextWriter</name>
    <message>
        <source>A text of the scheme %1, event type %2, holds a double quote or a null character, which cannot be written.</source>
        <translation>预案 %1（事件类型 %2）的文本含有双引号或空字符，无法写入。</translation>
    </message>
</context>
<context>
    <name>SchemeWords</name>
    <message>
        <source>%1, %2</source>
        <comment>source, event</comment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>plays the alarm sound</source>
        <translation>播放报警声音</translation>
    </message>
    <message>
        <source>lets the icon twinkle on the e-map</source>
        <translation>使电子地图图标闪烁</translation>
    </message>
    <message>
        <source>sends a mail</source>
        <translation>发送邮件</translation>
    </message>
    <message>
        <source>not armed</source>
        <translation>未布防</translation>
    </message>
    <message>
        <source>switches on %1 for %2 s</source>
        <translation>开启 %1（%2 秒）</translation>
    </message>
    <message>
        <source>is linked to %1 (%2 s)</source>
        <translation>联动 %1（%2 秒）</translation>
    </message>
    <message>
        <source>keeps %1 open</source>
        <translation>使 %1 保持打开</translation>
    </message>
    <message>
        <source>opens %1</source>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>shows %1 in window %2 for %3 s</source>
        <translation>在窗口 %2 显示 %1（%3 秒）</translation>
    </message>
    <message>
        <source>shows and records %1 in window %2 for %3 s</source>
        <translation>在窗口 %2 显示并录像 %1（%3 秒）</translation>
    </message>
    <message>
        <source>records %1 of window %2 for %3 s</source>
        <translation>对窗口 %2 的 %1 录像（%3 秒）</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>现在%1</translation>
    </message>
    <message>
        <source>no longer %1</source>
        <translation>不再%1</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>%1: %2, was %3</source>
        <comment>day, armed time, armed time before</comment>
        <translation>%1：%2，原为 %3</translation>
    </message>
    <message>
        <source>another layout of the video wall</source>
        <translation>电视墙布局不同</translation>
    </message>
</context>
<context>
    <name>SchemeWriting</name>
    <message>
        <source>Writing the schemes</source>
        <translation>正在写入预案</translation>
    </message>
    <message>
        <source>There is no backup of what was there before: %1</source>
        <translation>之前的内容没有备份：%1</translation>
    </message>
    <message>
        <source>The history does not tell of it: %1</source>
        <translation>历史记录未记载此次操作：%1</translation>
    </message>
</context>
<context>
    <name>ShowCommand</name>
    <message>
        <source>Shows everything that is set in a scheme.</source>
        <translation>显示一个预案的全部设置。</translation>
    </message>
    <message>
        <source>--source S --event TYPE [options]</source>
        <translation>--source 事件源 --event 类型 [选项]</translation>
    </message>
    <message>
        <source>--%1 is missing.</source>
        <translation>缺少 --%1。</translation>
    </message>
    <message>
        <source>There is no scheme for %1.</source>
        <translation>%1 没有预案。</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Key: %1, event type %2</source>
        <translation>键：%1，事件类型 %2</translation>
    </message>
    <message>
        <source>Switched on: %1</source>
        <translation>启用：%1</translation>
    </message>
    <message>
        <source>Sound: %1</source>
        <translation>声音：%1</translation>
    </message>
    <message>
        <source>Twinkle on the e-map: %1</source>
        <translation>电子地图闪烁：%1</translation>
    </message>
    <message>
        <source>Mail: %1</source>
        <translation>邮件：%1</translation>
    </message>
    <message>
        <source>Outputs: none</source>
        <translation>报警输出：无</translation>
    </message>
    <message>
        <source>Outputs:</source>
        <translation>报警输出：</translation>
    </message>
    <message>
        <source>%1 (%2): switched on for %3 s</source>
        <translation>%1（%2）：开启 %3 秒</translation>
    </message>
    <message>
        <source>%1 (%2): not switched on by itself, for %3 s otherwise</source>
        <translation>%1（%2）：不自动开启，其他方式开启时持续 %3 秒</translation>
    </message>
    <message>
        <source>Doors: none</source>
        <translation>门：无</translation>
    </message>
    <message>
        <source>Doors:</source>
        <translation>门：</translation>
    </message>
    <message>
        <source>%1 (%2): kept open</source>
        <translation>%1（%2）：保持打开</translation>
    </message>
    <message>
        <source>%1 (%2): opened</source>
        <translation>%1（%2）：打开</translation>
    </message>
    <message>
        <source>Video: none</source>
        <translation>视频：无</translation>
    </message>
    <message>
        <source>Video:</source>
        <translation>视频：</translation>
    </message>
    <message>
        <source>Window %1: %2 (%3), shown: %4, recorded: %5, preset %6, stream %7, %8 s</source>
        <translation>窗口 %1：%2（%3），显示：%4，录像：%5，预置位 %6，码流 %7，%8 秒</translation>
    </message>
    <message>
        <source>Video windows: %1 rows, %2 columns, %3 used</source>
        <translation>视频窗口：%1 行，%2 列，已用 %3 个</translation>
    </message>
    <message>
        <source>Defence time:</source>
        <translation>布防时间：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>day of the week, regions</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>SilencedFindings</name>
    <message>
        <source>The text is not in UTF-8.</source>
        <translation>文本不是 UTF-8 编码。</translation>
    </message>
    <message>
        <source>Line %1: there is no finding &quot;%2&quot;.</source>
        <translation>第 %1 行：没有检查结果“%2”。</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; is not the key of an event source.</source>
        <translation>第 %1 行：“%2”不是事件源的键。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 is larger than a list of findings can be.</source>
        <translation>%1 过大，不可能是检查结果列表。</translation>
    </message>
</context>
<context>
    <name>SiteArgument</name>
    <message>
        <source>Works on the site of this directory instead of the client&apos;s own.</source>
        <translation>使用此目录中的站点，而不是客户端自己的站点。</translation>
    </message>
    <message>
        <source>Works on this site file.</source>
        <translation>使用此站点文件。</translation>
    </message>
    <message>
        <source>--site and --data-dir exclude each other.</source>
        <translation>--site 和 --data-dir 不能同时使用。</translation>
    </message>
</context>
<context>
    <name>SiteExchange</name>
    <message>
        <source>there is not enough memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>a quotation mark stands where none may; a cell that holds one is written in quotation marks, with its own doubled</source>
        <translation>引号出现在不允许的位置；含引号的单元格须用引号括起，其中的引号须写两次</translation>
    </message>
    <message>
        <source>a closing quotation mark is missing</source>
        <translation>缺少右引号</translation>
    </message>
    <message>
        <source>it belonged to the device %1</source>
        <translation>原属于设备 %1</translation>
    </message>
    <message>
        <source>it stood in no group</source>
        <translation>原不在任何分组中</translation>
    </message>
    <message>
        <source>it stood in the group %1</source>
        <translation>原在分组 %1 中</translation>
    </message>
    <message>
        <source>its type was %1</source>
        <translation>原类型为 %1</translation>
    </message>
    <message>
        <source>its number was %1</source>
        <translation>原编号为 %1</translation>
    </message>
    <message>
        <source>it was enabled</source>
        <translation>原为启用</translation>
    </message>
    <message>
        <source>it was disabled</source>
        <translation>原为停用</translation>
    </message>
    <message>
        <source>it was online</source>
        <translation>原为在线</translation>
    </message>
    <message>
        <source>it was offline</source>
        <translation>原为离线</translation>
    </message>
    <message>
        <source>group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>%1 %2 &quot;%3&quot;</source>
        <translation>%1 %2“%3”</translation>
    </message>
    <message>
        <source>%1 is added</source>
        <translation>添加%1</translation>
    </message>
    <message>
        <source>%1 is renamed: %2</source>
        <translation>重命名%1：%2</translation>
    </message>
    <message>
        <source>%1 is changed: %2</source>
        <translation>更改%1：%2</translation>
    </message>
    <message>
        <source>%1 is removed</source>
        <translation>移除%1</translation>
    </message>
    <message>
        <source>Nothing changes: the site is the same already.</source>
        <translation>没有更改：站点已经相同。</translation>
    </message>
    <message>
        <source>Only the order changes.</source>
        <translation>仅顺序有变化。</translation>
    </message>
    <message>
        <source>%1 added, %2 renamed, %3 changed, %4 removed.</source>
        <translation>添加 %1 项，重命名 %2 项，更改 %3 项，移除 %4 项。</translation>
    </message>
    <message>
        <source>it was &quot;%1&quot;</source>
        <translation>原为“%1”</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>there are %1 backup copies already; move them away</source>
        <translation>已有 %1 个备份副本，请将其移走</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>文件大于 %1 MB</translation>
    </message>
    <message>
        <source>the file was changed by somebody else meanwhile</source>
        <translation>文件在此期间被他人更改</translation>
    </message>
    <message>
        <source>the file does not exist any more</source>
        <translation>文件已不存在</translation>
    </message>
    <message>
        <source>this is not UTF-8 but looks like UTF-16; save the table as UTF-8</source>
        <translation>这不是 UTF-8，可能是 UTF-16；请将表格另存为 UTF-8</translation>
    </message>
    <message>
        <source>the line is not valid UTF-8; save the table as UTF-8</source>
        <translation>该行不是有效的 UTF-8；请将表格另存为 UTF-8</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no record; write group, device or channel</source>
        <translation>“%1”不是有效的记录；请填写 group、device 或 channel</translation>
    </message>
    <message>
        <source>the first row must name the columns: %1</source>
        <translation>第一行必须是列名：%1</translation>
    </message>
    <message>
        <source>unknown column &quot;%1&quot;; the columns are %2</source>
        <translation>未知列“%1”；可用的列为 %2</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; stands twice</source>
        <translation>列“%1”出现两次</translation>
    </message>
    <message>
        <source>the column &quot;%1&quot; is missing</source>
        <translation>缺少列“%1”</translation>
    </message>
    <message>
        <source>the row has more cells than there are columns; a name with the separator in it is written in quotation marks</source>
        <translation>该行的单元格多于列数；含分隔符的名称须用引号括起</translation>
    </message>
    <message>
        <source>the id &quot;%1&quot; must be a whole number from 1 to %2</source>
        <translation>ID“%1”必须是 1 到 %2 的整数</translation>
    </message>
    <message>
        <source>the id %1 already stands on line %2</source>
        <translation>ID %1 已在第 %2 行出现</translation>
    </message>
    <message>
        <source>the parent &quot;%1&quot; is no id</source>
        <translation>上级“%1”不是有效的 ID</translation>
    </message>
    <message>
        <source>the type &quot;%1&quot; must be a whole number from 0 to %2, or one of: %3</source>
        <translation>类型“%1”必须是 0 到 %2 的整数，或以下之一：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in the column &quot;%2&quot; must be yes or no</source>
        <translation>列“%2”中的“%1”必须是 yes 或 no</translation>
    </message>
    <message>
        <source>a %1 has nothing in the column &quot;%2&quot;</source>
        <translation>%1在列“%2”中不得有内容</translation>
    </message>
    <message>
        <source>a channel needs the id of its device in the column &quot;parent&quot;</source>
        <translation>通道须在列“parent”中填写其设备的 ID</translation>
    </message>
    <message>
        <source>the number &quot;%1&quot; must be a whole number from 0 to %2</source>
        <translation>编号“%1”必须是 0 到 %2 的整数</translation>
    </message>
    <message>
        <source>the table is empty</source>
        <translation>表格为空</translation>
    </message>
    <message>
        <source>the device %1 does not exist</source>
        <translation>设备 %1 不存在</translation>
    </message>
    <message>
        <source>the number %1 of the type %2 already stands on line %3</source>
        <translation>类型 %2 的编号 %1 已在第 %3 行出现</translation>
    </message>
    <message>
        <source>the group %1 does not exist</source>
        <translation>分组 %1 不存在</translation>
    </message>
</context>
<context>
    <name>SiteFile</name>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1，第 %2 行：%3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>this is not a file</source>
        <translation>这不是文件</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>文件大于 %1 MB</translation>
    </message>
    <message>
        <source>the file must hold one object</source>
        <translation>文件必须包含一个对象</translation>
    </message>
    <message>
        <source>the entries of a list must be objects</source>
        <translation>列表的条目必须是对象</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 1 to %2</source>
        <translation>字段“%1”必须是 1 到 %2 的整数</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a whole number from 0 to %2</source>
        <translation>字段“%1”必须是 0 到 %2 的整数</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be true or false</source>
        <translation>字段“%1”必须是 true 或 false</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a text</source>
        <translation>字段“%1”必须是文本</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; must be a list</source>
        <translation>字段“%1”必须是列表</translation>
    </message>
    <message>
        <source>the id %1 already stands on line %2</source>
        <translation>ID %1 已在第 %2 行出现</translation>
    </message>
    <message>
        <source>the name is not valid Unicode</source>
        <translation>名称不是有效的 Unicode</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; stands twice</source>
        <translation>字段“%1”出现两次</translation>
    </message>
    <message>
        <source>unknown field &quot;%1&quot;</source>
        <translation>未知字段“%1”</translation>
    </message>
    <message>
        <source>the field &quot;%1&quot; is missing</source>
        <translation>缺少字段“%1”</translation>
    </message>
    <message>
        <source>the number %1 of kind %2 already stands on line %3</source>
        <translation>类型 %2 的编号 %1 已在第 %3 行出现</translation>
    </message>
    <message>
        <source>the group %1 does not exist</source>
        <translation>分组 %1 不存在</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>something follows after the end of the site</source>
        <translation>站点结束之后还有内容</translation>
    </message>
    <message>
        <source>the name of a field is missing</source>
        <translation>缺少字段名</translation>
    </message>
    <message>
        <source>a colon is missing after the name of a field</source>
        <translation>字段名后缺少冒号</translation>
    </message>
    <message>
        <source>a comma or a closing brace is missing</source>
        <translation>缺少逗号或右花括号</translation>
    </message>
    <message>
        <source>a comma or a closing bracket is missing</source>
        <translation>缺少逗号或右方括号</translation>
    </message>
    <message>
        <source>an escape in a text is not valid</source>
        <translation>文本中的转义无效</translation>
    </message>
    <message>
        <source>a closing quotation mark is missing</source>
        <translation>缺少右引号</translation>
    </message>
    <message>
        <source>a text is not valid UTF-8 or holds a control character</source>
        <translation>文本不是有效的 UTF-8 或含有控制字符</translation>
    </message>
    <message>
        <source>a number is not valid</source>
        <translation>数字无效</translation>
    </message>
    <message>
        <source>this is not valid JSON</source>
        <translation>不是有效的 JSON</translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation>名称为空</translation>
    </message>
    <message>
        <source>the name is longer than %1 characters</source>
        <translation>名称超过 %1 个字符</translation>
    </message>
    <message>
        <source>the name holds a control character</source>
        <translation>名称含有控制字符</translation>
    </message>
    <message>
        <source>the group %1 lies inside itself</source>
        <translation>分组 %1 位于自身之内</translation>
    </message>
    <message>
        <source>groups lie within groups more than %1 deep</source>
        <translation>分组嵌套超过 %1 层</translation>
    </message>
</context>
<context>
    <name>SiteImportDialog</name>
    <message>
        <source>What is removed disappears from the open pages at once, and its schemes go with the next save.</source>
        <translation>被移除的内容会立即从打开的页面中消失，其预案将在下次保存时一并移除。</translation>
    </message>
    <message>
        <source>What the import does</source>
        <translation>导入将执行的操作</translation>
    </message>
    <message>
        <source>Import a site</source>
        <translation>导入站点</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message numerus="yes">
        <source>%n problem(s): correct the file and import it again. Nothing has been changed.</source>
        <translation>
            <numerusform>%n 个问题：请修正文件后重新导入。未更改任何内容。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SiteImportModel</name>
    <message>
        <source>Line</source>
        <translation>行</translation>
    </message>
    <message>
        <source>What</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message numerus="yes">
        <source>%n more line(s) are wrong.</source>
        <translation>
            <numerusform>还有 %n 行有错误。</numerusform>
        </translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>What stays stands in another order.</source>
        <translation>保留的内容顺序不同。</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>移除</translation>
    </message>
</context>
<context>
    <name>SiteIndex</name>
    <message>
        <source>&quot;%1&quot; is no key, and without a site file there are no names.</source>
        <translation>“%1”不是键，且没有站点文件就没有名称。</translation>
    </message>
    <message>
        <source>The site has no &quot;%1&quot;.</source>
        <translation>站点中没有“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of these: %2.</source>
        <translation>“%1”可能是以下任意一项：%2。</translation>
    </message>
</context>
<context>
    <name>SiteSession</name>
    <message>
        <source>%1 was changed by somebody else and is left as it is; the removal holds until the client ends.</source>
        <translation>%1 已被他人修改，保持原样；移除仅在客户端退出前有效。</translation>
    </message>
</context>
<context>
    <name>SiteTransfer</name>
    <message>
        <source>Import a site</source>
        <translation>导入站点</translation>
    </message>
    <message>
        <source>Tables and site files (*.csv *.tsv *.txt *.json);;All files (*)</source>
        <translation>表格和站点文件 (*.csv *.tsv *.txt *.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Export the site</source>
        <translation>导出站点</translation>
    </message>
    <message>
        <source>Table (*.csv);;Site file (*.json)</source>
        <translation>表格 (*.csv);;站点文件 (*.json)</translation>
    </message>
    <message>
        <source>The site cannot be imported. %1</source>
        <translation>无法导入站点。%1</translation>
    </message>
    <message>
        <source>The site was not imported, and nothing has changed. %1</source>
        <translation>站点未导入，未更改任何内容。%1</translation>
    </message>
    <message>
        <source>The site was imported: %1</source>
        <translation>站点已导入：%1</translation>
    </message>
    <message>
        <source>The old one is kept in &quot;%1&quot; beside it.</source>
        <translation>原站点保留在其旁的“%1”中。</translation>
    </message>
    <message>
        <source>The client works on this file itself; choose another for the export.</source>
        <translation>客户端正在使用此文件，请为导出选择其他文件。</translation>
    </message>
    <message>
        <source>The site cannot be exported. %1</source>
        <translation>无法导出站点。%1</translation>
    </message>
    <message>
        <source>The site was exported to %1.</source>
        <translation>站点已导出到 %1。</translation>
    </message>
</context>
<context>
    <name>UnsavedWork</name>
    <message>
        <source>The schemes are being saved. The program closes when that is done.</source>
        <translation>正在保存预案。保存完成后程序将关闭。</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the program closes?</source>
        <translation>%1：有未保存的更改。是否在关闭程序前保存？</translation>
    </message>
    <message>
        <source>The schemes are being saved. The tab closes when that is done.</source>
        <translation>正在保存预案。保存完成后标签页将关闭。</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the tab closes?</source>
        <translation>%1：有未保存的更改。是否在关闭标签页前保存？</translation>
    </message>
    <message>
        <source>The schemes are being saved. They are loaded anew when that is done.</source>
        <translation>正在保存预案。保存完成后将重新加载。</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before everything is loaded anew?</source>
        <translation>%1：有未保存的更改。是否在全部重新加载前保存？</translation>
    </message>
    <message>
        <source>%1: there are changes that are not saved. Save them before the session ends?</source>
        <translation>%1：有未保存的更改。是否在会话结束前保存？</translation>
    </message>
    <message>
        <source>Changes are not saved</source>
        <translation>更改未保存</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>放弃(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The last save failed. Close the program all the same and lose the changes?</source>
        <translation>上次保存失败。是否仍要关闭程序并丢失更改？</translation>
    </message>
</context>
<context>
    <name>UserRoles</name>
    <message>
        <source>Administrator</source>
        <translation>管理员</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>操作员</translation>
    </message>
</context>
<context>
    <name>VantaComponent::GroupTreeCtrl</name>
    <message>
        <source>Remove device</source>
        <translation>移除设备</translation>
    </message>
    <message>
        <source>Remove &quot;%1&quot; from the site? Its alarm schemes go with it.</source>
        <translation>要从站点移除“%1”吗？其报警预案将一并移除。</translation>
    </message>
    <message>
        <source>No device matches &quot;%1&quot;; clear the search to see all devices.</source>
        <translation>没有与“%1”匹配的设备；清除搜索可查看所有设备。</translation>
    </message>
    <message>
        <source>The site has no device that can be chosen here.</source>
        <translation>站点中没有可在此选择的设备。</translation>
    </message>
    <message>
        <source>The site has no devices; add one to see it here.</source>
        <translation>站点中没有设备；添加后将显示在此处。</translation>
    </message>
</context>
<context>
    <name>VantaModel::GroupTreeModel</name>
    <message>
        <source>Number %1, id %2</source>
        <translation>编号 %1，ID %2</translation>
    </message>
    <message>
        <source>Id %1, switched off in the configuration</source>
        <translation>ID %1，已在配置中停用</translation>
    </message>
    <message>
        <source>Id %1, offline: it can be configured but does not answer</source>
        <translation>ID %1，离线：可以配置，但无响应</translation>
    </message>
    <message>
        <source>Id %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>%1, not available</source>
        <translation>%1，不可用</translation>
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
        <translation>%1：%3 个预案中有 %2 个布防</translation>
    </message>
    <message>
        <source>%1: %2 of %3 schemes armed, %4 more for a part of it</source>
        <translation>%1：%3 个预案中有 %2 个布防，另有 %4 个在部分时间布防</translation>
    </message>
</context>
<context>
    <name>WhoSwitchesCommand</name>
    <message>
        <source>Tells which schemes switch an output on.</source>
        <translation>显示哪些预案会开启某个报警输出。</translation>
    </message>
    <message>
        <source>no: the scheme is switched off</source>
        <translation>否：预案已停用</translation>
    </message>
    <message>
        <source>no: the scheme is never armed</source>
        <translation>否：预案从不布防</translation>
    </message>
    <message>
        <source>for %1 s</source>
        <translation>持续 %1 秒</translation>
    </message>
    <message>
        <source>no: the output is not opened automatically</source>
        <translation>否：报警输出不自动开启</translation>
    </message>
    <message>
        <source>OUTPUT [options]</source>
        <translation>输出 [选项]</translation>
    </message>
    <message>
        <source>%1, linked by %2:</source>
        <comment>output, number of schemes</comment>
        <translation>%1，被 %2 个预案联动：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>scheme, whether and how long it switches the output on</comment>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>this is no file</source>
        <translation>这不是文件</translation>
    </message>
</context>
</TS>
