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
        <translation>设置每个门和报警输入发生事件时的处理方式</translation>
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
    <name>HomePage</name>
    <message>
        <source>Modules</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>No module is loaded; put a module file into the &quot;modules&quot; folder beside the program and start again.</source>
        <translation>未加载任何模块；请将模块文件放入程序旁的“modules”文件夹，然后重新启动。</translation>
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
        <source>Home</source>
        <translation>首页</translation>
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
        <source>%1: %n device(s)</source>
        <translation>
            <numerusform>%1：%n 个设备</numerusform>
        </translation>
    </message>
    <message>
        <source>ACS Client</source>
        <translation>ACS 客户端</translation>
    </message>
    <message>
        <source>%1 - ACS Client</source>
        <translation>%1 - ACS 客户端</translation>
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
        <source>No event is selected.</source>
        <translation>未选择事件。</translation>
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
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Usage: %1 --doors N [--seed S] [--output FILE]</source>
        <translation>用法：%1 --doors N [--seed S] [--output 文件]</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>多余的参数“%1”。</translation>
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
        <source>--output takes the name of a file.</source>
        <translation>--output 须为文件名。</translation>
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
    <name>SchemeStoreOutcome</name>
    <message>
        <source>%1 %2</source>
        <comment>what happened, what to do next</comment>
        <translation>%1%2</translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) loaded.</source>
        <translation>
            <numerusform>已加载 %n 个预案。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n scheme(s) saved.</source>
        <translation>
            <numerusform>已保存 %n 个预案。</numerusform>
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
    <name>SiteSession</name>
    <message>
        <source>%1 was changed by somebody else and is left as it is; the removal holds until the client ends.</source>
        <translation>%1 已被他人修改，保持原样；移除仅在客户端退出前有效。</translation>
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
</TS>
