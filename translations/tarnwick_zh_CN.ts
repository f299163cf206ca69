<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CommandArea</name>
    <message>
        <source>  Command</source>
        <translation>  命令</translation>
    </message>
    <message>
        <source>Load Command</source>
        <translation>载入命令</translation>
    </message>
    <message>
        <source>Save Command</source>
        <translation>保存命令</translation>
    </message>
    <message>
        <source>Clear Command</source>
        <translation>清空命令</translation>
    </message>
</context>
<context>
    <name>CommandTable</name>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>CMD</source>
        <translation>CMD</translation>
    </message>
    <message>
        <source>Addr</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>CRC</source>
        <translation>CRC</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>DataType</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>OriginalData</source>
        <translation>原始数据</translation>
    </message>
    <message>
        <source>The command table is full: rows can be inserted up to row %1.</source>
        <translation>命令表已满：最多只能插入到第 %1 行。</translation>
    </message>
    <message>
        <source>Expectations</source>
        <translation>期望</translation>
    </message>
</context>
<context>
    <name>Dialog</name>
    <message>
        <source>Uart</source>
        <translation>Uart</translation>
    </message>
    <message>
        <source>HID</source>
        <translation>HID</translation>
    </message>
    <message>
        <source>Clear Message</source>
        <translation>清空消息</translation>
    </message>
    <message>
        <source>Save Message</source>
        <translation>保存消息</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>DirectEditor</name>
    <message>
        <source>edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>CMD:</source>
        <translation>CMD:</translation>
    </message>
    <message>
        <source>Addr:</source>
        <translation>地址:</translation>
    </message>
    <message>
        <source>Data Type</source>
        <translation>数据类型</translation>
    </message>
    <message>
        <source>Data:</source>
        <translation>数据:</translation>
    </message>
    <message>
        <source>Hex:</source>
        <translation>Hex:</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Select command txt files</source>
        <translation>选择命令文件（txt）</translation>
    </message>
    <message>
        <source>Commands saved: %1</source>
        <translation>命令已保存：%1</translation>
    </message>
    <message>
        <source>Save command txt files</source>
        <translation>保存消息文件（txt）</translation>
    </message>
    <message>
        <source>file(*.txt)</source>
        <translation>文件(*.txt)</translation>
    </message>
    <message>
        <source>Messages saved: %1</source>
        <translation>消息已保存：%1</translation>
    </message>
</context>
<context>
    <name>FileDrop</name>
    <message>
        <source>Of %1 files that were dropped, none was loaded: drop one.</source>
        <translation>拖入了 %1 个文件，一个也没有载入：请只拖入一个。</translation>
    </message>
    <message>
        <source>Not loaded, as it is no file of this computer: %1</source>
        <translation>未载入，因为它不是本机上的文件：%1</translation>
    </message>
    <message>
        <source>Not loaded, as it is no .txt file: %1</source>
        <translation>未载入，因为它不是 .txt 文件：%1</translation>
    </message>
</context>
<context>
    <name>FileEntrances</name>
    <message>
        <source>Not loaded, as the loop is running.</source>
        <translation>未载入，因为循环正在运行。</translation>
    </message>
</context>
<context>
    <name>HeaderField</name>
    <message>
        <source>No start bytes: write two, as in 0x5A,0xA5. Until then frames begin with A5 5A.</source>
        <translation>没有起始字节：请写两个，例如 0x5A,0xA5。在此之前，帧以 A5 5A 开头。</translation>
    </message>
</context>
<context>
    <name>HelpKey</name>
    <message>
        <source>The guide is not installed. It would be here: %1</source>
        <translation>指南没有安装。它应当在这里：%1</translation>
    </message>
    <message>
        <source>Nothing here opens the guide. It is here: %1</source>
        <translation>这里没有程序能打开指南。它在这里：%1</translation>
    </message>
</context>
<context>
    <name>HidTab</name>
    <message>
        <source>Device:</source>
        <translation>设备:</translation>
    </message>
    <message>
        <source>Report ID:</source>
        <translation>报告 ID:</translation>
    </message>
    <message>
        <source>CMD Header:</source>
        <translation>帧头:</translation>
    </message>
    <message>
        <source>CRC Enable:</source>
        <translation>启用 CRC:</translation>
    </message>
    <message>
        <source>CRC Enable</source>
        <translation>启用 CRC</translation>
    </message>
    <message>
        <source>Open HID Device</source>
        <translation>打开 HID 设备</translation>
    </message>
    <message>
        <source>Send selected items</source>
        <translation>发送选中项</translation>
    </message>
    <message>
        <source>No device of a type that is listed in hidDeviceID.ini is attached.

The header that counts is that of the &quot;Uart&quot; tab, for HID too.</source>
        <translation>没有连接 hidDeviceID.ini 中列出的类型的设备。

起作用的帧头是“Uart”页上的，对 HID 也是如此。</translation>
    </message>
    <message>
        <source>No device, see %1</source>
        <translation>没有设备，见 %1</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>已连接...</translation>
    </message>
</context>
<context>
    <name>LinkStatus</name>
    <message>
        <source>The connection to %1 was lost and is back.</source>
        <translation>与 %1 的连接曾中断，现已恢复。</translation>
    </message>
    <message>
        <source>%1. It is opened again when it is back.</source>
        <translation>%1。设备恢复后会重新打开。</translation>
    </message>
</context>
<context>
    <name>ListFiles</name>
    <message>
        <source>A command list was not saved when the program ended.</source>
        <translation>程序结束时有一份命令列表没有保存。</translation>
    </message>
    <message>
        <source>Load it...</source>
        <translation>载入...</translation>
    </message>
</context>
<context>
    <name>ListUndo</name>
    <message>
        <source>rows %1 to %2</source>
        <translation>第 %1 至 %2 行</translation>
    </message>
    <message>
        <source>row %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>another list</source>
        <translation>另一份列表</translation>
    </message>
    <message>
        <source>%1 inserted</source>
        <translation>插入%1</translation>
    </message>
    <message>
        <source>%1 deleted</source>
        <translation>删除%1</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <translation>修改%1</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>已撤销：%1。</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>已重做：%1。</translation>
    </message>
    <message>
        <source>The list can&apos;t be exchanged while the loop runs.</source>
        <translation>循环运行时不能更换列表。</translation>
    </message>
</context>
<context>
    <name>LogCellDelegate</name>
    <message>
        <source>The CRC does not fit: %1 expected.</source>
        <translation>CRC 不符：应为 %1。</translation>
    </message>
</context>
<context>
    <name>LoopArea</name>
    <message>
        <source>Interval Time:</source>
        <translation>间隔时间:</translation>
    </message>
    <message>
        <source>Cycle Delay:</source>
        <translation>循环延时:</translation>
    </message>
    <message>
        <source>Repeat:</source>
        <translation>次数:</translation>
    </message>
    <message>
        <source>How many passes the loop makes; empty: until it is stopped</source>
        <translation>循环运行的遍数；留空：直到停止为止</translation>
    </message>
    <message>
        <source>endless</source>
        <translation>无限</translation>
    </message>
    <message>
        <source>Auto Send</source>
        <translation>自动发送</translation>
    </message>
    <message>
        <source>pass %1</source>
        <translation>第 %1 遍</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Sending...</source>
        <translation>发送中...</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
</context>
<context>
    <name>MessageArea</name>
    <message>
        <source>  Message</source>
        <translation>  消息</translation>
    </message>
    <message>
        <source>Text, bytes as hexadecimal digits, tx, rx, note; all of them must match</source>
        <translation>文本、十六进制字节、tx、rx、note；必须全部匹配</translation>
    </message>
    <message>
        <source>Find in the message log</source>
        <translation>在消息日志中查找</translation>
    </message>
    <message>
        <source>Find text, bytes, tx, rx, note</source>
        <translation>查找文本、字节、tx、rx、note</translation>
    </message>
    <message>
        <source>New rows are not scrolled to. Scroll to the end to follow them again.</source>
        <translation>不再滚动到新的行。滚动到末尾即可重新跟随。</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of 1 row</source>
        <translation>%1 / 1 行</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 / %2 行</translation>
    </message>
</context>
<context>
    <name>MessageLog</name>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>帧头</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>CMD</source>
        <translation>CMD</translation>
    </message>
    <message>
        <source>Addr</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>CRC</source>
        <translation>CRC</translation>
    </message>
    <message>
        <source>The log was full and began anew at %1; the %2 rows before are gone.</source>
        <translation>日志已满，于 %1 重新开始；之前的 %2 行已清除。</translation>
    </message>
    <message>
        <source>A recording goes on in %1.</source>
        <translation>录制仍在 %1 中继续。</translation>
    </message>
</context>
<context>
    <name>MessageMenu</name>
    <message>
        <source>&amp;Go to its command</source>
        <translation>转到其命令(&amp;G)</translation>
    </message>
    <message>
        <source>Copy &amp;rows</source>
        <translation>复制行(&amp;R)</translation>
    </message>
    <message>
        <source>Copy &amp;data</source>
        <translation>复制数据(&amp;D)</translation>
    </message>
    <message>
        <source>Copy data as &amp;text</source>
        <translation>复制数据为文本(&amp;T)</translation>
    </message>
    <message>
        <source>Copy data as &amp;C array</source>
        <translation>复制数据为 C 数组(&amp;C)</translation>
    </message>
    <message>
        <source>Copy data as &amp;Python bytes</source>
        <translation>复制数据为 Python 字节(&amp;P)</translation>
    </message>
    <message>
        <source>T&amp;ime</source>
        <translation>时间(&amp;I)</translation>
    </message>
    <message>
        <source>Since the &amp;row before</source>
        <translation>距上一行(&amp;R)</translation>
    </message>
    <message>
        <source>Of the &amp;day</source>
        <translation>当天时刻(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>不显示(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Hold</source>
        <translation>暂停滚动(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>查找(&amp;F)…</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Open fail</source>
        <translation>打开失败</translation>
    </message>
    <message>
        <source>the recording can&apos;t be read</source>
        <translation>无法读取该录制</translation>
    </message>
    <message>
        <source>Read fail,please check the path!</source>
        <translation>读取失败，请检查路径！</translation>
    </message>
    <message>
        <source>The file is too large for a command list!</source>
        <translation>文件太大，不能作为命令列表！</translation>
    </message>
    <message>
        <source>The file has more than %1 commands!</source>
        <translation>文件中的命令超过 %1 条！</translation>
    </message>
    <message>
        <source>Input Register:Invalid format!</source>
        <translation>输入寄存器：格式无效！</translation>
    </message>
    <message>
        <source>Save the file failed</source>
        <translation>保存文件失败</translation>
    </message>
    <message>
        <source>The hardware monitoring registration failed, and the hardware could not be identified!</source>
        <translation>硬件监视注册失败，无法识别硬件！</translation>
    </message>
    <message>
        <source>1 event</source>
        <translation>1 个事件</translation>
    </message>
    <message>
        <source>%1 events</source>
        <translation>%1 个事件</translation>
    </message>
    <message>
        <source>Stopped: %1</source>
        <translation>已停止：%1</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>已录制</translation>
    </message>
    <message>
        <source>%1 dropped</source>
        <translation>丢弃 %1</translation>
    </message>
    <message>
        <source>The recording %1 has stopped: %2.</source>
        <translation>录制 %1 已停止：%2。</translation>
    </message>
    <message>
        <source>%1 was not exported: %2.</source>
        <translation>%1 未能导出：%2。</translation>
    </message>
    <message>
        <source>%1 exported to %2.</source>
        <translation>已将 %1 导出到 %2。</translation>
    </message>
    <message>
        <source>The recording was cut off within its last event.</source>
        <translation>该录制在最后一个事件中被截断。</translation>
    </message>
    <message>
        <source>%1 has no bytes for: </source>
        <translation>%1 无法表示：</translation>
    </message>
    <message>
        <source>This system has no %1 codec. Not written: </source>
        <translation>本系统没有 %1 编码。未写入：</translation>
    </message>
    <message>
        <source>&lt;br&gt;&quot;?&quot; is written in their place.</source>
        <translation>&lt;br&gt;以“?”代替。</translation>
    </message>
    <message>
        <source>&lt;br&gt;String is over wordNumber!</source>
        <translation>&lt;br&gt;字符串超出字数！</translation>
    </message>
    <message>
        <source>A digit is missing: each byte has two.</source>
        <translation>缺少一位数字：每个字节有两位。</translation>
    </message>
    <message>
        <source>Not a hexadecimal number.</source>
        <translation>不是十六进制数。</translation>
    </message>
    <message>
        <source>Not a number of milliseconds.</source>
        <translation>不是毫秒数。</translation>
    </message>
    <message>
        <source>Keep at least one line!</source>
        <translation>至少保留一行！</translation>
    </message>
    <message>
        <source>Has reached the top!</source>
        <translation>已经到顶！</translation>
    </message>
    <message>
        <source>Has reached the bottom!</source>
        <translation>已经到底！</translation>
    </message>
    <message>
        <source>edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>clone</source>
        <translation>复制行</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>延时</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>select all</source>
        <translation>全部选中</translation>
    </message>
    <message>
        <source>select none</source>
        <translation>全部取消</translation>
    </message>
    <message>
        <source>there are more cells than columns.</source>
        <translation>单元格多于列数。</translation>
    </message>
    <message>
        <source>neither &quot;select&quot; nor &quot;unselect&quot;.</source>
        <translation>既不是“select”也不是“unselect”。</translation>
    </message>
    <message>
        <source>no expectation lines.</source>
        <translation>不是期望行。</translation>
    </message>
    <message>
        <source>Row %1, %2</source>
        <translation>第 %1 行，%2</translation>
    </message>
    <message>
        <source>There is more text than a command list can have.</source>
        <translation>文本超出了命令列表的容量。</translation>
    </message>
    <message>
        <source>a quote is not closed.</source>
        <translation>引号没有闭合。</translation>
    </message>
    <message>
        <source>There are no rows to paste.</source>
        <translation>没有可粘贴的行。</translation>
    </message>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
    <message>
        <source>nothing more expected, got %1</source>
        <translation>不应再有数据，却收到 %1</translation>
    </message>
    <message>
        <source>%1 is forbidden, got %2</source>
        <translation>%1 不允许出现，却收到 %2</translation>
    </message>
    <message>
        <source>expected %1, got %2</source>
        <translation>应为 %1，收到 %2</translation>
    </message>
    <message>
        <source> with a bad CRC</source>
        <translation>，CRC 错误</translation>
    </message>
    <message>
        <source>, too late</source>
        <translation>，太迟</translation>
    </message>
    <message>
        <source>no frame: %1</source>
        <translation>不是帧：%1</translation>
    </message>
    <message>
        <source>expected %1, got nothing</source>
        <translation>应为 %1，什么也没收到</translation>
    </message>
    <message>
        <source> within %1</source>
        <translation>（%1 内）</translation>
    </message>
    <message>
        <source> after %1</source>
        <translation>（%1 后）</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 行</translation>
    </message>
    <message>
        <source>some characters do not exist in this system&apos;s text encoding</source>
        <translation>有些字符在本系统的文本编码中不存在</translation>
    </message>
    <message>
        <source>cannot be read again (a comma, or &quot;//&quot; at the beginning)</source>
        <translation>无法再读入（含有逗号，或以“//”开头）</translation>
    </message>
    <message>
        <source>will be different when loaded (CMD needs 2 characters, Addr 4, a delay at most 4)</source>
        <translation>再载入时会不同（CMD 需 2 个字符，地址 4 个，延时最多 4 个）</translation>
    </message>
    <message>
        <source>Saved, but the file does not hold everything:</source>
        <translation>已保存，但文件没有包含全部内容：</translation>
    </message>
    <message>
        <source>row %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Startbytes Length error</source>
        <translation>起始字节长度错误</translation>
    </message>
    <message>
        <source>Not thing to send!</source>
        <translation>没有可发送的内容！</translation>
    </message>
    <message>
        <source>No thing to send!</source>
        <translation>没有可发送的内容！</translation>
    </message>
    <message>
        <source>Instruction length %1 is out of the maximum range,&lt;br&gt; sending errors may occur!</source>
        <translation>指令长度 %1 超出最大范围，&lt;br&gt;发送可能出错！</translation>
    </message>
    <message>
        <source>Not sent: the device has yet to take %1 bytes.</source>
        <translation>未发送：设备还有 %1 个字节没有接收。</translation>
    </message>
    <message>
        <source>row:%1 instruction length is out of the maximum range, sending errors may occur!</source>
        <translation>行：%1 的指令长度超出最大范围，发送可能出错！</translation>
    </message>
    <message>
        <source>Please open the HID Device!</source>
        <translation>请打开 HID 设备！</translation>
    </message>
    <message>
        <source>it takes nothing any more</source>
        <translation>它不再接收数据</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>%1, %2 bytes, report ID 0x%3</source>
        <translation>%1，%2 字节，报告 ID 0x%3</translation>
    </message>
    <message>
        <source>No port is chosen.</source>
        <translation>没有选择串口。</translation>
    </message>
    <message>
        <source>%1 is in use by another program (%2).</source>
        <translation>%1 正被另一个程序使用（%2）。</translation>
    </message>
    <message>
        <source>%1 It belongs to the group %2. To join it: sudo adduser &quot;$USER&quot; %2, then log in again.</source>
        <translation>%1 它属于 %2 组。加入该组：sudo adduser &quot;$USER&quot; %2，然后重新登录。</translation>
    </message>
    <message>
        <source>The connection to %1 is lost: %2</source>
        <translation>与 %1 的连接已中断：%2</translation>
    </message>
    <message>
        <source>No device is chosen.</source>
        <translation>没有选择设备。</translation>
    </message>
    <message>
        <source>%1 A udev rule helps: copy 70-tarnwick.rules to /etc/udev/rules.d, with a line for %2, and plug the device in again.</source>
        <translation>%1 udev 规则可以解决：把 70-tarnwick.rules 复制到 /etc/udev/rules.d，其中加上 %2 的一行，然后重新插入设备。</translation>
    </message>
    <message>
        <source>Cannot open regedit!</source>
        <translation>无法打开注册表！</translation>
    </message>
    <message>
        <source>Please open the Com Port!</source>
        <translation>请打开串口！</translation>
    </message>
    <message>
        <source>the device is gone</source>
        <translation>设备已移除</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇</translation>
    </message>
    <message>
        <source>Sent %1, answered %2, lost %3 (none within 1 s)</source>
        <translation>发送 %1，应答 %2，丢失 %3（1 s 内无应答）</translation>
    </message>
    <message>
        <source>Reply time: last %1, median %2, 99 % within %3</source>
        <translation>应答时间：最近 %1，中位 %2，99 % 在 %3 内</translation>
    </message>
    <message>
        <source>Passes: %1
Frames: %2 out, %3 in, %4 lost
Reply: %5, 99 %: %6
Late: %7, 99 %: %8,
at most %9</source>
        <translation>遍数：%1
帧：发 %2，收 %3，丢 %4
应答：%5，99 %：%6
延迟：%7，99 %：%8，
最大 %9</translation>
    </message>
    <message>
        <source>%1 after the row before</source>
        <translation>上一行之后 %1</translation>
    </message>
    <message>
        <source>First byte at %1, %2 before</source>
        <translation>首字节于 %1，早 %2</translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation>已放弃</translation>
    </message>
    <message>
        <source>it is out of place</source>
        <translation>位置不对</translation>
    </message>
    <message>
        <source>no recording begins like this</source>
        <translation>录制文件不会这样开头</translation>
    </message>
    <message>
        <source>it is too long</source>
        <translation>太长</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no text</source>
        <translation>“%1”不是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no hexadecimal text</source>
        <translation>“%1”不是十六进制文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is out of range</source>
        <translation>“%1”超出范围</translation>
    </message>
    <message>
        <source>no time</source>
        <translation>没有时间</translation>
    </message>
    <message>
        <source>an unknown format</source>
        <translation>未知格式</translation>
    </message>
    <message>
        <source>&quot;crc&quot; is not ok, bad or none</source>
        <translation>“crc”不是 ok、bad 或 none</translation>
    </message>
    <message>
        <source>an unknown &quot;ev&quot;</source>
        <translation>未知的“ev”</translation>
    </message>
    <message>
        <source>no object</source>
        <translation>不是对象</translation>
    </message>
    <message>
        <source>a block of an impossible size</source>
        <translation>块的大小不可能</translation>
    </message>
    <message>
        <source>a block with two sizes</source>
        <translation>块有两个大小</translation>
    </message>
    <message>
        <source>a section that isn&apos;t ours</source>
        <translation>不是本程序的段</translation>
    </message>
    <message>
        <source>no serial line</source>
        <translation>不是串行线</translation>
    </message>
    <message>
        <source>a packet that isn&apos;t ours</source>
        <translation>不是本程序的数据包</translation>
    </message>
    <message>
        <source>an impossible time</source>
        <translation>不可能的时间</translation>
    </message>
    <message>
        <source>byte %1: %2</source>
        <translation>第 %1 字节：%2</translation>
    </message>
    <message>
        <source>the disk is nearly full</source>
        <translation>磁盘快满了</translation>
    </message>
    <message>
        <source>the file is gone</source>
        <translation>文件已不存在</translation>
    </message>
    <message>
        <source>Insert %1</source>
        <translation>插入 %1</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>No thing to send</source>
        <translation>没有可发送的内容</translation>
    </message>
    <message>
        <source>Too many order!</source>
        <translation>命令太多！</translation>
    </message>
    <message>
        <source>Not a Command was selected to send!</source>
        <translation>没有选择要发送的命令！</translation>
    </message>
    <message>
        <source>%1 bytes dropped</source>
        <translation>丢弃 %1 字节</translation>
    </message>
    <message>
        <source>Lost %1</source>
        <translation>中断 %1</translation>
    </message>
    <message>
        <source>Reopen %1</source>
        <translation>重新打开 %1</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Do you want to save your command?</source>
        <translation>要保存命令吗？</translation>
    </message>
    <message>
        <source>The commands were changed. Do you want to save them before others are loaded?</source>
        <translation>命令已修改。载入其他命令之前要保存吗？</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许的操作</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不够</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有该文件或目录</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是目录</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是一个目录</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘限额</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>只读文件系统</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <translation>文件句柄已失效</translation>
    </message>
    <message>
        <source>No such device</source>
        <translation>没有该设备</translation>
    </message>
    <message>
        <source>No such device or address</source>
        <translation>没有该设备或地址</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备或资源忙</translation>
    </message>
    <message>
        <source>Resource temporarily unavailable</source>
        <translation>资源暂时不可用</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Inappropriate ioctl for device</source>
        <translation>对设备不适当的 ioctl 操作</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>无效的参数</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>管道中断</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>Device is already open</source>
        <translation>设备已经打开</translation>
    </message>
    <message>
        <source>Device is not open</source>
        <translation>设备没有打开</translation>
    </message>
    <message>
        <source>Device disappeared from the system</source>
        <translation>设备已从系统中消失</translation>
    </message>
    <message>
        <source>Error reading from device</source>
        <translation>读取设备出错</translation>
    </message>
    <message>
        <source>Error writing to device</source>
        <translation>写入设备出错</translation>
    </message>
    <message>
        <source>Operation timed out</source>
        <translation>操作超时</translation>
    </message>
    <message>
        <source>Permission error while locking the device</source>
        <translation>没有锁定设备的权限</translation>
    </message>
    <message>
        <source>Permission error while creating lock file</source>
        <translation>没有创建锁文件的权限</translation>
    </message>
    <message>
        <source>Failed to create a lock file for opening the device</source>
        <translation>无法创建打开设备所需的锁文件</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>%1: gone</source>
        <translation>%1：已不存在</translation>
    </message>
    <message>
        <source>No file was loaded or saved yet</source>
        <translation>还没有载入或保存过文件</translation>
    </message>
</context>
<context>
    <name>RecordControl</name>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Recording to %1</source>
        <translation>正在录制到 %1</translation>
    </message>
    <message>
        <source>Recorded: %1</source>
        <translation>已录制：%1</translation>
    </message>
    <message>
        <source>Export a recording</source>
        <translation>导出录制</translation>
    </message>
    <message>
        <source>Recordings (*.jsonl *.pcapng)</source>
        <translation>录制文件 (*.jsonl *.pcapng)</translation>
    </message>
    <message>
        <source>Export to</source>
        <translation>导出到</translation>
    </message>
</context>
<context>
    <name>RecordPanel</name>
    <message>
        <source>Writes what is in a recording as CSV, for spreadsheets</source>
        <translation>把录制的内容写成 CSV，供电子表格使用</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Record…</source>
        <translation>录制…</translation>
    </message>
    <message>
        <source>Writes everything that goes over the wire into a file</source>
        <translation>把线路上的一切写入文件</translation>
    </message>
    <message>
        <source>Stop recording</source>
        <translation>停止录制</translation>
    </message>
</context>
<context>
    <name>SerialTab</name>
    <message>
        <source>Com Port:</source>
        <translation>串口:</translation>
    </message>
    <message>
        <source>Baudrate:</source>
        <translation>波特率:</translation>
    </message>
    <message>
        <source>dataBit:</source>
        <translation>数据位:</translation>
    </message>
    <message>
        <source>stopBit:</source>
        <translation>停止位:</translation>
    </message>
    <message>
        <source>Parity:</source>
        <translation>校验:</translation>
    </message>
    <message>
        <source>CMD Header:</source>
        <translation>帧头:</translation>
    </message>
    <message>
        <source>CRC Enable:</source>
        <translation>启用 CRC:</translation>
    </message>
    <message>
        <source>CRC Enable</source>
        <translation>启用 CRC</translation>
    </message>
    <message>
        <source>A port that is lost while it is open is opened again when it is back</source>
        <translation>打开着的串口中断后，一旦恢复就重新打开</translation>
    </message>
    <message>
        <source>Reopen</source>
        <translation>重新打开</translation>
    </message>
    <message>
        <source>Open Com Port</source>
        <translation>打开串口</translation>
    </message>
    <message>
        <source>Send selected items</source>
        <translation>发送选中项</translation>
    </message>
    <message>
        <source>Linking...</source>
        <translation>已连接...</translation>
    </message>
</context>
<context>
    <name>TableClipboard</name>
    <message>
        <source>There are no bytes to paste.</source>
        <translation>没有可粘贴的字节。</translation>
    </message>
    <message>
        <source>Not bytes: &quot;%1&quot;.</source>
        <translation>不是字节：“%1”。</translation>
    </message>
    <message>
        <source>A digit is missing in &quot;%1&quot;: each byte has two.</source>
        <translation>“%1”缺少一位数字：每个字节有两位。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is written in another way than what is before it.</source>
        <translation>“%1”的写法与前面的不同。</translation>
    </message>
    <message>
        <source>%1 may be decimal or hexadecimal: write 0x10 or 10h.</source>
        <translation>%1 可能是十进制也可能是十六进制：请写成 0x10 或 10h。</translation>
    </message>
    <message>
        <source>More than %1 bytes.</source>
        <translation>超过 %1 个字节。</translation>
    </message>
    <message>
        <source>This row is a pause: its Data are milliseconds.</source>
        <translation>这一行是延时：其数据是毫秒数。</translation>
    </message>
</context>
</TS>
