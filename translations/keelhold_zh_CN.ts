<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>ActivityStrip</name>
    <message>
        <source>Movement in front of each camera: the stronger the colour, the more changed. Click to go there.</source>
        <translation>各摄像头前的动静：颜色越深，变化越大。点击即可跳转到该处。</translation>
    </message>
    <message>
        <source>%1: movement at %2</source>
        <extracomment>%1 is a camera&apos;s name, %2 a time into the event</extracomment>
        <translation>%1：%2 有动静</translation>
    </message>
    <message>
        <source>%1: quiet at %2</source>
        <translation>%1：%2 无动静</translation>
    </message>
</context>
<context>
    <name>AppCommandLine</name>
    <message>
        <source>Usage: %1</source>
        <extracomment>%1 is the command&apos;s synopsis, which stays as it is</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>  or:  %1</source>
        <extracomment>The second synopsis line, under &quot;Usage:&quot;; %1 stays as it is</extracomment>
        <translation>  或：%1</translation>
    </message>
    <message>
        <source>Reviews the footage a Tesla records to its USB drive. Keelhold reads the drive&apos;s TeslaCam folder without ever writing to it, plays every camera of an event in sync, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>查看特斯拉录制到 U 盘上的录像。Keelhold 读取 U 盘的 TeslaCam 文件夹，但绝不写入；它能同步播放一个事件的所有摄像头，并把您选中的事件以经过校验的副本留存到保险库文件夹中。</translation>
    </message>
    <message>
        <source>Exit status:</source>
        <translation>退出状态：</translation>
    </message>
    <message>
        <source>The window was closed.</source>
        <translation>窗口已关闭。</translation>
    </message>
    <message>
        <source>The window could not be shown.</source>
        <translation>无法显示窗口。</translation>
    </message>
    <message>
        <source>The command line was wrong.</source>
        <translation>命令行有误。</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Start with the sample footage instead of a drive.</source>
        <translation>使用示例录像启动，而不是读取 U 盘。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Environment:</source>
        <extracomment>Heading over the environment variables the program reads</extracomment>
        <translation>环境变量：</translation>
    </message>
    <message>
        <source>A TeslaCam folder to show as the sample footage.</source>
        <translation>作为示例录像显示的 TeslaCam 文件夹。</translation>
    </message>
    <message>
        <source>%1 or %2, in place of the desktop&apos;s choice.</source>
        <extracomment>%1 and %2 are the variable&apos;s values, typed as they stand</extracomment>
        <translation>%1 或 %2，代替桌面的设置。</translation>
    </message>
    <message>
        <source>keelhold doesn&apos;t know “%1”. Run “keelhold --help” to see what it takes.</source>
        <extracomment>%1 is the argument given; &quot;keelhold --help&quot; is a command and stays as it is</extracomment>
        <translation>keelhold 不认识“%1”。请运行“keelhold --help”查看它接受的参数。</translation>
    </message>
    <message>
        <source>Open at the Vault, where kept events are.</source>
        <translation>打开时直接进入保险库，即留存事件所在的位置。</translation>
    </message>
    <message>
        <source>keelhold: the sample footage is not installed, so Keelhold starts without it.</source>
        <translation>keelhold：未安装示例录像，因此 Keelhold 将在没有示例录像的情况下启动。</translation>
    </message>
</context>
<context>
    <name>ArchiveEngine</name>
    <message>
        <source>This file took too long to read — the drive may be failing.</source>
        <translation>读取此文件耗时过长——U 盘可能出现故障。</translation>
    </message>
    <message>
        <source>Couldn&apos;t create a file in your Vault folder.</source>
        <translation>无法在您的保险库文件夹中创建文件。</translation>
    </message>
    <message>
        <source>This file changed size while copying — the drive may have been disconnected.</source>
        <translation>此文件在复制过程中大小发生了变化——U 盘可能已断开连接。</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
    <message>
        <source>There isn&apos;t enough space in your Vault folder.</source>
        <translation>您的保险库文件夹空间不足。</translation>
    </message>
    <message>
        <source>The Vault folder is no longer available.</source>
        <translation>保险库文件夹已无法访问。</translation>
    </message>
    <message>
        <source>This isn&apos;t an ordinary file (it is a link or a special file), so it was left alone.</source>
        <translation>这不是普通文件（而是链接或特殊文件），因此未做处理。</translation>
    </message>
    <message>
        <source>The Vault&apos;s list of kept events couldn&apos;t be saved, so nothing from this run is recorded as kept.</source>
        <translation>无法保存保险库的留存事件列表，因此本次操作中的任何内容都未被记录为已留存。</translation>
    </message>
</context>
<context>
    <name>ArchivedEvent</name>
    <message>
        <source>Unknown Drive</source>
        <extracomment>Stands for the name of a drive that could not be read</extracomment>
        <translation>未知 U 盘</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <source>Front</source>
        <extracomment>Camera name: the camera looking ahead through the windscreen</extracomment>
        <translation>前方</translation>
    </message>
    <message>
        <source>Rear</source>
        <extracomment>Camera name: the camera looking backwards above the number plate</extracomment>
        <translation>后方</translation>
    </message>
    <message>
        <source>Left Side</source>
        <extracomment>Camera name: the camera in the left side repeater, looking back along the car</extracomment>
        <translation>左侧</translation>
    </message>
    <message>
        <source>Right Side</source>
        <extracomment>Camera name: the camera in the right side repeater, looking back along the car</extracomment>
        <translation>右侧</translation>
    </message>
    <message>
        <source>Left Pillar</source>
        <extracomment>Camera name: the camera in the left door pillar (B pillar)</extracomment>
        <translation>左 B 柱</translation>
    </message>
    <message>
        <source>Right Pillar</source>
        <extracomment>Camera name: the camera in the right door pillar (B pillar)</extracomment>
        <translation>右 B 柱</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Camera name: the reversing camera (not a copy of files)</extracomment>
        <translation>倒车</translation>
    </message>
</context>
<context>
    <name>CameraTile</name>
    <message>
        <source>%1 camera</source>
        <extracomment>Screen reader name of a camera&apos;s tile; %1 is the camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1摄像头</translation>
    </message>
</context>
<context>
    <name>CliOutput</name>
    <message>
        <source>Read a TeslaCam folder and print its events as JSON.</source>
        <translation>读取 TeslaCam 文件夹，并以 JSON 格式输出其中的事件。</translation>
    </message>
    <message>
        <source>Print the health report of a TeslaCam folder as JSON.</source>
        <translation>以 JSON 格式输出 TeslaCam 文件夹的健康报告。</translation>
    </message>
    <message>
        <source>Write one camera of one event as one MP4 movie, or all cameras at once.</source>
        <translation>将一个事件的某个摄像头写出为一个 MP4 视频，或一次写出所有摄像头。</translation>
    </message>
    <message>
        <source>Write the incident report of one event as a PDF, or an evidence package with every original.</source>
        <translation>将一个事件的事故报告写出为 PDF，或写出包含所有原始文件的证据包。</translation>
    </message>
    <message>
        <source>Copy events into a Vault folder, checking every file.</source>
        <translation>将事件复制到保险库文件夹，并校验每个文件。</translation>
    </message>
    <message>
        <source>List, remove or re-check the events kept in a Vault folder.</source>
        <translation>列出、移除或重新校验保险库文件夹中留存的事件。</translation>
    </message>
    <message>
        <source>Print the driving data recorded with an event&apos;s footage.</source>
        <translation>输出与事件录像一同记录的驾驶数据。</translation>
    </message>
    <message>
        <source>Print where to look in an event: activity in front of each camera, and hard moments.</source>
        <translation>输出事件中值得查看的地方：各摄像头前的动静，以及剧烈时刻。</translation>
    </message>
    <message>
        <source>Check and remember your Tesla sign-in, for the car&apos;s encrypted clips.</source>
        <translation>检查并记住您的特斯拉登录信息，用于车辆加密的片段。</translation>
    </message>
    <message>
        <source>Write an event&apos;s encrypted clips as the plain MP4 movies they hold.</source>
        <translation>将事件的加密片段写出为其中包含的普通 MP4 视频。</translation>
    </message>
    <message>
        <source>There is no folder at “%1”. Check that the drive is plugged in and the path is right.</source>
        <translation>“%1”处没有文件夹。请检查 U 盘是否已插好、路径是否正确。</translation>
    </message>
    <message>
        <source>“%1” is a file, not a folder. Give the TeslaCam folder itself.</source>
        <translation>“%1”是文件，不是文件夹。请指定 TeslaCam 文件夹本身。</translation>
    </message>
    <message>
        <source>There is no event “%1” in this folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>此文件夹中没有事件“%1”。</translation>
    </message>
    <message>
        <source>A file holding your Tesla sign-in token, or - to read it from standard input. Without it, the token keelhold-cli unlock remembered is used.</source>
        <translation>存有您特斯拉登录令牌的文件，或用 - 表示从标准输入读取。如不提供，则使用 keelhold-cli unlock 记住的令牌。</translation>
    </message>
    <message>
        <source>The token file %1 can&apos;t be read.</source>
        <translation>无法读取令牌文件 %1。</translation>
    </message>
    <message>
        <source>Standard input holds no sign-in token.</source>
        <translation>标准输入中没有登录令牌。</translation>
    </message>
    <message>
        <source>The file %1 holds no sign-in token.</source>
        <translation>文件 %1 中没有登录令牌。</translation>
    </message>
    <message>
        <source>These clips are encrypted by your car and no key for them is kept here: give your Tesla sign-in token with --token-file, or run keelhold-cli unlock first.</source>
        <translation>这些片段已被您的车辆加密，而此处没有保存它们的密钥：请用 --token-file 提供您的特斯拉登录令牌，或先运行 keelhold-cli unlock。</translation>
    </message>
    <message>
        <source>Writes each encrypted clip of an event as the plain MP4 movie it holds, under the same file name, into a
folder of your choice. Keys kept before are used first; the missing ones are fetched from Tesla&apos;s service
with your sign-in token. Exits with 1 when only some clips could be written.</source>
        <translation>将事件的每个加密片段写出为其中包含的普通 MP4 视频，文件名不变，保存到
您选择的文件夹中。优先使用之前保存的密钥；缺少的密钥将使用您的登录令牌
从特斯拉的服务获取。如果只有部分片段能写出，则以 1 退出。</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder, to read.</source>
        <translation>要读取的 TeslaCam 文件夹或保险库文件夹。</translation>
    </message>
    <message>
        <source>The event&apos;s id, as keelhold-cli scan prints it.</source>
        <translation>事件的 ID，即 keelhold-cli scan 输出的 ID。</translation>
    </message>
    <message>
        <source>Only this camera&apos;s clips.</source>
        <translation>只处理此摄像头的片段。</translation>
    </message>
    <message>
        <source>The folder to write the movies into.</source>
        <translation>写入视频的文件夹。</translation>
    </message>
    <message>
        <source>“%1” is not a camera; use one of %2.</source>
        <extracomment>%1 is the camera as typed, %2 the camera names the command takes</extracomment>
        <translation>“%1”不是摄像头名称；请使用以下之一：%2。</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so choose a folder somewhere else.</source>
        <translation>Keelhold 绝不写入您的特斯拉 U 盘，因此请选择其他位置的文件夹。</translation>
    </message>
    <message>
        <source>The %1 camera has no encrypted footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>%1摄像头在此事件中没有加密录像。</translation>
    </message>
    <message>
        <source>This event&apos;s footage isn&apos;t encrypted: its files are plain MP4 movies already.</source>
        <translation>此事件的录像未加密：其文件已经是普通 MP4 视频。</translation>
    </message>
    <message>
        <source>The folder %1 can&apos;t be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The clips couldn&apos;t be read from the drive or written to %1.</source>
        <translation>无法从 U 盘读取这些片段，或无法写入 %1。</translation>
    </message>
    <message>
        <source>Wrote %1 of %2 clips to %3.</source>
        <extracomment>%3 is a folder</extracomment>
        <translation>已将 %2 个片段中的 %1 个写入 %3。</translation>
    </message>
    <message>
        <source>Wrote %1 clips to %2.</source>
        <extracomment>%2 is a folder</extracomment>
        <translation>已将 %1 个片段写入 %2。</translation>
    </message>
    <message>
        <source>The drive went away: %1 of %2 events were kept completely. Plug it back in and run keep again to finish.</source>
        <translation>U 盘已断开：%2 个事件中有 %1 个已完整留存。请重新插入 U 盘并再次运行 keep 以完成。</translation>
    </message>
    <message>
        <source>Prints where to look in an event: for each camera the bursts of activity (something moving in front of
it, found from how much the camera&apos;s video changed), and the hard moments of the drive (hard braking,
a swerve, Autopilot switching off, a sudden stop, the car&apos;s emergency braking) from the driving data
its clips carry. Times are seconds on the event&apos;s timeline, as the player shows them. The drive is
only read.</source>
        <translation>输出事件中值得查看的地方：每个摄像头的活动时段（摄像头前有东西在移动，根据该摄像头视频的
变化程度判断），以及根据片段携带的驾驶数据找出的剧烈时刻（急刹车、急转向、自动辅助驾驶关闭、
急停、车辆紧急制动）。时间以事件时间轴上的秒数表示，
与播放器显示的一致。
对 U 盘只读不写。</translation>
    </message>
    <message>
        <source>json (the default) or csv.</source>
        <extracomment>json and csv are values typed on the command line; keep them as they are</extracomment>
        <translation>json（默认）或 csv。</translation>
    </message>
    <message>
        <source>“%1” is not a format; use json or csv.</source>
        <extracomment>%1 is the format as typed; json and csv stay as they are</extracomment>
        <translation>“%1”不是有效格式；请使用 json 或 csv。</translation>
    </message>
    <message>
        <source>None of this event&apos;s clips could be read.</source>
        <translation>无法读取此事件的任何片段。</translation>
    </message>
    <message>
        <source>Stopped before every clip was read.</source>
        <translation>在读取完所有片段之前已停止。</translation>
    </message>
    <message>
        <source>Checks your Tesla sign-in token with Tesla&apos;s service and remembers it in this computer&apos;s secret store, so
that export, telemetry and decrypt can fetch the keys of your car&apos;s encrypted clips. Only the clips&apos; key
blocks and your car&apos;s VIN are ever sent, never video. To get the token, sign in at Tesla&apos;s dashcam viewer
in your browser and copy it from there. Give it in a file or on standard input, never on the command
line, where other users could read it.</source>
        <translation>通过特斯拉的服务检查您的登录令牌，并将其保存在这台电脑的密钥存储中，以便 export、
telemetry 和 decrypt 能获取您车辆加密片段的密钥。只会发送片段的密钥块和车辆的 VIN，
绝不发送视频。获取令牌的方法：在浏览器中登录特斯拉的行车记录仪查看器，从中复制令牌。
请通过文件或标准输入提供令牌，切勿写在命令行上，
否则其他用户可能看到它。</translation>
    </message>
    <message>
        <source>Remove the remembered sign-in from this computer&apos;s secret store.</source>
        <translation>从这台电脑的密钥存储中移除已记住的登录信息。</translation>
    </message>
    <message>
        <source>A token on the command line can be seen by other users of this computer, so keelhold-cli won&apos;t take one there: put it in a file and give --token-file FILE, or --token-file - to type it.</source>
        <translation>命令行上的令牌可能被这台电脑的其他用户看到，因此 keelhold-cli 不接受这种方式：请将令牌放入文件并使用 --token-file FILE，或使用 --token-file - 手动输入。</translation>
    </message>
    <message>
        <source>Your Tesla sign-in is no longer remembered on this computer.</source>
        <translation>这台电脑已不再记住您的特斯拉登录信息。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service didn&apos;t accept this sign-in token: it may have expired. Sign in again at Tesla&apos;s dashcam viewer and copy a fresh one.</source>
        <translation>特斯拉的服务未接受此登录令牌：它可能已过期。请在特斯拉的行车记录仪查看器中重新登录，并复制新的令牌。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, but this computer has no secret store to remember it in: give it with --token-file to each command instead.</source>
        <translation>特斯拉的服务已接受您的登录，但这台电脑没有可用于保存它的密钥存储：请改为在每条命令中用 --token-file 提供。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service accepted your sign-in, and it is remembered in this computer&apos;s secret store.</source>
        <translation>特斯拉的服务已接受您的登录，并已保存在这台电脑的密钥存储中。</translation>
    </message>
    <message>
        <source>“%1” is a file, not a Vault folder.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>“%1”是文件，不是保险库文件夹。</translation>
    </message>
    <message>
        <source>There is no Vault folder at %1.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>%1 处没有保险库文件夹。</translation>
    </message>
    <message>
        <source>keelhold-cli has no option “%1” before a command. Run “keelhold-cli --help” to see the commands and their options.</source>
        <extracomment>%1 is the option as typed</extracomment>
        <translation>keelhold-cli 在命令之前没有选项“%1”。请运行“keelhold-cli --help”查看命令及其选项。</translation>
    </message>
    <message>
        <source>There is no command “%1”. Run “keelhold-cli --help” to see them all.</source>
        <extracomment>%1 is the command as typed</extracomment>
        <translation>没有命令“%1”。请运行“keelhold-cli --help”查看所有命令。</translation>
    </message>
    <message>
        <source>Keep what is new from every TeslaCam drive as it is connected, until stopped.</source>
        <translation>在每个特斯拉 U 盘连接时留存其中的新内容，直到停止。</translation>
    </message>
    <message>
        <source>Usage: %1
  or:  %2
  or:  %3
</source>
        <extracomment>The ways to call the tool; %1, %2 and %3 are command lines, which stay as they are. Keep them lined up.</extracomment>
        <translation>用法：%1
  或：%2
  或：%3
</translation>
    </message>
    <message>
        <source>Reads the TeslaCam folder of a Tesla&apos;s USB drive without ever writing to it, and keeps chosen events in a Vault folder as verified copies.</source>
        <translation>读取特斯拉 U 盘上的 TeslaCam 文件夹，但绝不写入；并将您选中的事件以经过校验的副本留存到保险库文件夹中。</translation>
    </message>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the list of commands in the help</extracomment>
        <translation>命令：</translation>
    </message>
    <message>
        <source>Show the options of a command.</source>
        <translation>显示某个命令的选项。</translation>
    </message>
    <message>
        <source>Exit status:
  0    Done.
  1    Done in part: keep could not keep some files, vault verify found a file changed or missing, or
       decrypt could write only some clips.
  2    The work could not be done, for example because the folder is missing or can&apos;t be read.
  64   The command line was wrong.
  130  keep was stopped with Ctrl-C.
</source>
        <extracomment>The exit codes in the help. Keep the numbers and their column; keep, vault verify and decrypt are command names.</extracomment>
        <translation>退出状态：
  0    完成。
  1    部分完成：keep 未能留存某些文件、vault verify 发现文件被更改或缺失，或
       decrypt 只能写出部分片段。
  2    无法完成工作，例如文件夹不存在或无法读取。
  64   命令行有误。
  130  keep 被 Ctrl-C 停止。
</translation>
    </message>
    <message>
        <source>Progress and messages go to standard error, results to standard output.</source>
        <translation>进度和消息输出到标准错误，结果输出到标准输出。</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the list of options in the help</extracomment>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>help takes one command, such as “keelhold-cli help scan”.</source>
        <translation>help 只接受一个命令，例如“keelhold-cli help scan”。</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <extracomment>How a command is typed; %1 is the command line itself, which stays as it is</extracomment>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>%1 %2 folders, %3 events, %4 clips</source>
        <extracomment>Scan progress; %1 says what is being read (&quot;Reading Sentry events…&quot;), then counts so far</extracomment>
        <translation>%1 %2 个文件夹，%3 个事件，%4 个片段</translation>
    </message>
    <message>
        <source>probing %1 of %2 clips</source>
        <extracomment>Progress while each clip is opened to check it</extracomment>
        <translation>正在检查片段 %1/%2</translation>
    </message>
    <message>
        <source>Exporting… %1% (finishing the file)</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>正在导出… %1%（正在完成文件）</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps, %5 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second, %5 the time left as m:ss</extracomment>
        <translation>正在导出… %1%（第 %2/%3 帧，%4 fps，剩余 %5）</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 fps)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 frames per second</extracomment>
        <translation>正在导出… %1%（第 %2/%3 帧，%4 fps）</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames, %4 left)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames, %4 the time left as m:ss</extracomment>
        <translation>正在导出… %1%（第 %2/%3 帧，剩余 %4）</translation>
    </message>
    <message>
        <source>Exporting… %1% (%2 of %3 frames)</source>
        <extracomment>Export progress: %1 percent done, %2 of %3 frames</extracomment>
        <translation>正在导出… %1%（第 %2/%3 帧）</translation>
    </message>
    <message>
        <source>Writes one camera of one event as a single MP4 movie, copied as it is, or every camera at once with the date and time drawn on it. The drive is only read.</source>
        <translation>将一个事件的某个摄像头原样复制为一个 MP4 视频，或将所有摄像头一起写出并在画面上标注日期和时间。对 U 盘只读不写。</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read.</source>
        <translation>要读取的 TeslaCam 文件夹。</translation>
    </message>
    <message>
        <source>One of: %1.</source>
        <extracomment>Help of an option; %1 lists the values it takes, which stay as they are</extracomment>
        <translation>以下之一：%1。</translation>
    </message>
    <message>
        <source>The movie file to create; in an existing folder, the suggested name is used.</source>
        <translation>要创建的视频文件；如果指定的是现有文件夹，则使用建议的文件名。</translation>
    </message>
    <message>
        <source>Start, in seconds of the joined footage.</source>
        <translation>起点，以拼接后录像的秒数计。</translation>
    </message>
    <message>
        <source>End, in seconds of the joined footage.</source>
        <translation>终点，以拼接后录像的秒数计。</translation>
    </message>
    <message>
        <source>Makes one new movie with every camera at once and the time drawn on it. One of: grid, front-sides, single. Single re-encodes the --camera alone. --from and --to then count seconds of the event&apos;s timeline, as the player shows it.</source>
        <extracomment>grid, front-sides and single are values typed on the command line; keep them as they are</extracomment>
        <translation>生成一个新视频，同时显示所有摄像头并标注时间。可选值：grid、front-sides、single。single 只重新编码 --camera 指定的摄像头。此时 --from 和 --to 按事件时间轴的秒数计算，与播放器显示的一致。</translation>
    </message>
    <message>
        <source>What a new movie shows over the pictures, any of: time, names, reason, telemetry, none. Join parts with commas; the default is time,names,reason. Telemetry is the car&apos;s speed, pedals, steering and Autopilot where its clips carry them, in km/h or mph as your locale measures. With only --camera, any part makes a new movie of that camera instead of a copy.</source>
        <extracomment>time, names, reason, telemetry, none and time,names,reason are values typed on the command line; keep them as they are</extracomment>
        <translation>新视频在画面上叠加显示的内容，可任选：time、names、reason、telemetry、none。多项用逗号连接；默认为 time,names,reason。telemetry 是片段中记录的车速、踏板、转向和自动辅助驾驶状态（如有），单位按您的区域设置使用 km/h 或 mph。如果只指定 --camera，选择任何一项都会为该摄像头生成新视频，而不是原样复制。</translation>
    </message>
    <message>
        <source>The new movie&apos;s picture height. One of: 720, 1080, full. The default is 1080.</source>
        <extracomment>720, 1080 and full are values typed on the command line; keep them as they are</extracomment>
        <translation>新视频的画面高度。可选值：720、1080、full。默认为 1080。</translation>
    </message>
    <message>
        <source>--overlay takes time, names, reason and telemetry joined with commas, or none.</source>
        <extracomment>time, names, reason, telemetry and none are values typed on the command line; keep them as they are</extracomment>
        <translation>--overlay 接受用逗号连接的 time、names、reason 和 telemetry，或 none。</translation>
    </message>
    <message>
        <source>“%1” is not a layout; use grid, front-sides or single.</source>
        <extracomment>%1 is the layout as typed; grid, front-sides and single stay as they are</extracomment>
        <translation>“%1”不是有效布局；请使用 grid、front-sides 或 single。</translation>
    </message>
    <message>
        <source>Name the camera with --camera, or choose --layout grid or front-sides.</source>
        <translation>请用 --camera 指定摄像头，或选择 --layout grid 或 front-sides。</translation>
    </message>
    <message>
        <source>--camera picks the one camera of --layout single; grid and front-sides show every camera.</source>
        <translation>--camera 用于选择 --layout single 的那一个摄像头；grid 和 front-sides 会显示所有摄像头。</translation>
    </message>
    <message>
        <source>“%1” is not a size; use 720, 1080 or full.</source>
        <extracomment>%1 is the size as typed; 720, 1080 and full stay as they are</extracomment>
        <translation>“%1”不是有效尺寸；请使用 720、1080 或 full。</translation>
    </message>
    <message>
        <source>--from and --to take a number of seconds, such as 12.5.</source>
        <translation>--from 和 --to 接受秒数，例如 12.5。</translation>
    </message>
    <message>
        <source>There is no event “%1” in this TeslaCam folder.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>在此 TeslaCam 文件夹中没有事件“%1”。</translation>
    </message>
    <message>
        <source>Exporting… %1%</source>
        <extracomment>Export progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>正在导出… %1%</translation>
    </message>
    <message>
        <source>The %1 camera has no playable footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>%1摄像头在此事件中没有可播放的录像。</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>此事件的所有摄像头都没有可播放的录像。</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>导出已停止。</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints its health report (fullness, damaged clips, format, events not yet kept, recommendations) as JSON.</source>
        <translation>读取 TeslaCam 文件夹，并以 JSON 格式输出其健康报告（已用空间、损坏的片段、格式、尚未留存的事件、建议）。</translation>
    </message>
    <message>
        <source>The TeslaCam folder to read, or the drive that holds it.</source>
        <translation>要读取的 TeslaCam 文件夹，或包含它的 U 盘。</translation>
    </message>
    <message>
        <source>The Vault folder whose index tells which events are kept.</source>
        <translation>保险库文件夹，其索引记录了哪些事件已留存。</translation>
    </message>
    <message>
        <source>Open every clip to find damaged ones (slower).</source>
        <translation>打开每个片段以找出损坏的片段（较慢）。</translation>
    </message>
    <message>
        <source>Indent the JSON for reading.</source>
        <translation>缩进 JSON，便于阅读。</translation>
    </message>
    <message>
        <source>There is no Vault folder at “%1”.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>“%1”处没有保险库文件夹。</translation>
    </message>
    <message>
        <source>Copies events from a TeslaCam folder into a Vault folder, checking each file&apos;s size and recording its SHA-256, and prints the report as JSON.
Exit status: 0 when everything was kept, 1 when some files could not be kept, 130 when stopped with Ctrl-C, 2 when the drive could not be read.</source>
        <extracomment>The numbers are exit codes; keep them</extracomment>
        <translation>将事件从 TeslaCam 文件夹复制到保险库文件夹，检查每个文件的大小并记录其 SHA-256，然后以 JSON 格式输出报告。
退出状态：全部留存时为 0，有文件未能留存时为 1，被 Ctrl-C 停止时为 130，无法读取 U 盘时为 2。</translation>
    </message>
    <message>
        <source>The Vault folder.</source>
        <translation>保险库文件夹。</translation>
    </message>
    <message>
        <source>An event to keep, as printed by scan (&quot;sentry|&lt;folder&gt;&quot;). Repeat for more; without it, every event is kept.</source>
        <extracomment>&quot;sentry|&lt;folder&gt;&quot; shows how an event&apos;s id looks; keep it as it is</extracomment>
        <translation>要留存的事件，格式与 scan 输出的相同（&quot;sentry|&lt;folder&gt;&quot;）。可重复指定多个；如不指定，则留存所有事件。</translation>
    </message>
    <message>
        <source>Seconds allowed for each file (default 10).</source>
        <translation>每个文件允许的秒数（默认 10）。</translation>
    </message>
    <message>
        <source>The time limit must be a number of seconds, more than 0 and at most a day.</source>
        <translation>时间限制必须是秒数，大于 0 且不超过一天。</translation>
    </message>
    <message>
        <source>There is no event “%1” on this drive.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>此 U 盘上没有事件“%1”。</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s · %5</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second, %5 the file being copied</extracomment>
        <translation>%1/%2 个事件 · %3 MB · %4 MB/s · %5</translation>
    </message>
    <message>
        <source>%1/%2 events · %3 MB · %4 MB/s</source>
        <extracomment>Keep progress: %1 of %2 events done, %3 megabytes copied, %4 megabytes a second</extracomment>
        <translation>%1/%2 个事件 · %3 MB · %4 MB/s</translation>
    </message>
    <message>
        <source>Stopping after the current file… (Ctrl-C again to quit at once)</source>
        <translation>将在当前文件完成后停止…（再按一次 Ctrl-C 立即退出）</translation>
    </message>
    <message>
        <source>Writes the incident report of one event as a PDF: when and where, each camera at the moment, the driving data, and every original file with its SHA-256. With --package, one ZIP that also holds every original and a SHA256SUMS file that `sha256sum -c` checks. The drive is only read.</source>
        <extracomment>SHA256SUMS is a file name and `sha256sum -c` a command; keep both as they are</extracomment>
        <translation>将一个事件的事故报告写出为 PDF：时间和地点、事发时刻各摄像头的画面、驾驶数据，以及每个原始文件及其 SHA-256。使用 --package 时，生成一个 ZIP，其中还包含每个原始文件和一个可用 `sha256sum -c` 检查的 SHA256SUMS 文件。对 U 盘只读不写。</translation>
    </message>
    <message>
        <source>The TeslaCam folder, or a Vault folder.</source>
        <translation>TeslaCam 文件夹或保险库文件夹。</translation>
    </message>
    <message>
        <source>The file to create; in an existing folder, the suggested name is used.</source>
        <translation>要创建的文件；如果指定的是现有文件夹，则使用建议的文件名。</translation>
    </message>
    <message>
        <source>Makes the evidence package (ZIP) instead of the PDF alone.</source>
        <translation>生成证据包（ZIP），而不只是 PDF。</translation>
    </message>
    <message>
        <source>Puts the unlock keys of an encrypted event into the package.</source>
        <translation>将加密事件的解锁密钥放入证据包。</translation>
    </message>
    <message>
        <source>A Vault to compare the files with, for an event on the drive that was kept there.</source>
        <translation>用于比对文件的保险库，适用于 U 盘上已在该保险库中留存过的事件。</translation>
    </message>
    <message>
        <source>One of: km/h, mph. The default is the app&apos;s choice, else the one your locale uses.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>以下之一：km/h、mph。默认使用应用中的设置，否则使用您的区域设置所用的单位。</translation>
    </message>
    <message>
        <source>--speed-unit takes km/h or mph.</source>
        <extracomment>km/h and mph are values typed on the command line; keep them as they are</extracomment>
        <translation>--speed-unit 接受 km/h 或 mph。</translation>
    </message>
    <message>
        <source>Making the report… %1%</source>
        <extracomment>Report progress; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>正在生成报告… %1%</translation>
    </message>
    <message>
        <source>The report was stopped.</source>
        <translation>报告生成已停止。</translation>
    </message>
    <message>
        <source>Reads a TeslaCam folder and prints what it holds as JSON.</source>
        <translation>读取 TeslaCam 文件夹，并以 JSON 格式输出其中的内容。</translation>
    </message>
    <message>
        <source>Open every clip after the scan to find its health and length.</source>
        <translation>扫描后打开每个片段，以确定其健康状况和时长。</translation>
    </message>
    <message>
        <source>Seconds each clip may take to answer (default 10).</source>
        <translation>每个片段允许响应的秒数（默认 10）。</translation>
    </message>
    <message>
        <source>The timeout must be a number of seconds, such as 10.</source>
        <translation>超时必须是秒数，例如 10。</translation>
    </message>
    <message>
        <source>The timeout applies only with --probe.</source>
        <translation>超时仅在使用 --probe 时有效。</translation>
    </message>
    <message>
        <source>Prints the driving data the car recorded with one camera&apos;s footage of an event, one row for each
frame: its time on the event&apos;s timeline and in its clip, when it was taken, and the car&apos;s speed
(metres per second), gear, accelerator, steering angle (degrees), blinkers, brake, Autopilot state,
GPS position, heading (degrees) and acceleration (metres per second squared). Cars on software
2025.44.25 or later record it. The drive is only read.</source>
        <translation>输出车辆随某个事件中一个摄像头的录像记录的驾驶数据，每帧一行：该帧在事件时间轴和所在片段中的时间、
拍摄时刻，以及车速（米/秒）、挡位、加速踏板、方向盘转角（度）、转向灯、
制动、自动辅助驾驶状态、GPS 位置、航向（度）和加速度（米/秒²）。
软件版本 2025.44.25 或更高的车辆会记录这些数据。
对 U 盘只读不写。</translation>
    </message>
    <message>
        <source>csv, json, or gpx (the route, for a mapping tool). Default: from the output file&apos;s extension, else csv.</source>
        <extracomment>csv, json and gpx are values typed on the command line; keep them as they are</extracomment>
        <translation>csv、json 或 gpx（路线，供地图工具使用）。默认：根据输出文件的扩展名判断，否则为 csv。</translation>
    </message>
    <message>
        <source>The file to write instead of standard output.</source>
        <translation>要写入的文件，代替标准输出。</translation>
    </message>
    <message>
        <source>“%1” is not a format; use csv, json or gpx.</source>
        <extracomment>%1 is the format as typed; csv, json and gpx stay as they are</extracomment>
        <translation>“%1”不是有效格式；请使用 csv、json 或 gpx。</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the driving data somewhere else.</source>
        <translation>Keelhold 绝不写入您的特斯拉 U 盘，因此请将驾驶数据保存到其他位置。</translation>
    </message>
    <message>
        <source>The %1 camera has no footage in this event.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;</extracomment>
        <translation>%1摄像头在此事件中没有录像。</translation>
    </message>
    <message>
        <source>The %1 camera&apos;s clips of this event carry no driving data: cars record it from software 2025.44.25 on, and not in every mode.</source>
        <extracomment>%1 is a camera&apos;s name, such as &quot;Front&quot;; 2025.44.25 is a software version</extracomment>
        <translation>%1摄像头在此事件中的片段不含驾驶数据：车辆从软件版本 2025.44.25 起才会记录，且并非所有模式下都会记录。</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <extracomment>%1 is a file, %2 the system&apos;s reason</extracomment>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>The Vault has no event “%1”.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>保险库中没有事件“%1”。</translation>
    </message>
    <message>
        <source>Moved “%1” to the Trash.</source>
        <extracomment>%1 is an event&apos;s id</extracomment>
        <translation>已将“%1”移至回收站。</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing was removed.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>无法解析保险库的 manifest.json，因此未移除任何内容。</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json is missing, so the kept events can&apos;t be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>保险库的 manifest.json 缺失，因此无法检查留存的事件。</translation>
    </message>
    <message>
        <source>The Vault&apos;s manifest.json can&apos;t be understood, so nothing could be checked.</source>
        <extracomment>manifest.json is a file name</extracomment>
        <translation>无法解析保险库的 manifest.json，因此无法检查任何内容。</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>vault verify: the verdict on an event whose files all match, in capitals like the others</extracomment>
        <translation>无差异</translation>
    </message>
    <message>
        <source>DIFFERS</source>
        <extracomment>vault verify: the verdict on an event with a file changed, missing or unreadable</extracomment>
        <translation>有差异</translation>
    </message>
    <message>
        <source>INCOMPLETE</source>
        <extracomment>vault verify: the verdict on an event that was kept only in part</extracomment>
        <translation>不完整</translation>
    </message>
    <message>
        <source>%1 verified</source>
        <extracomment>vault verify: how many of an event&apos;s files matched their record</extracomment>
        <translation>%1 个已校验</translation>
    </message>
    <message>
        <source>%1 changed</source>
        <extracomment>vault verify: how many of an event&apos;s files differ from their record</extracomment>
        <translation>%1 个已更改</translation>
    </message>
    <message>
        <source>%1 missing</source>
        <extracomment>vault verify: how many of an event&apos;s files are gone</extracomment>
        <translation>%1 个缺失</translation>
    </message>
    <message>
        <source>%1 unreadable</source>
        <extracomment>vault verify: how many of an event&apos;s files couldn&apos;t be read</extracomment>
        <translation>%1 个无法读取</translation>
    </message>
    <message>
        <source>incomplete (%1 of %2 files kept)</source>
        <translation>不完整（已留存 %1/%2 个文件）</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>vault verify: %1 is the name of a file that differs from its record</extracomment>
        <translation>已更改 %1</translation>
    </message>
    <message>
        <source>missing %1</source>
        <extracomment>vault verify: %1 is the name of a file that is gone</extracomment>
        <translation>缺失 %1</translation>
    </message>
    <message>
        <source>unreadable %1</source>
        <extracomment>vault verify: %1 is the name of a file that couldn&apos;t be read</extracomment>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>%1  %2: %3</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts</extracomment>
        <translation>%1  %2：%3</translation>
    </message>
    <message>
        <source>%1  %2: %3 (%4)</source>
        <extracomment>One line of vault verify: %1 the verdict, %2 the event&apos;s id, %3 the counts, %4 the files that differ</extracomment>
        <translation>%1  %2：%3（%4）</translation>
    </message>
    <message>
        <source>Lists, removes or re-checks the events kept in a Vault folder.
verify re-reads every file that manifest.json lists, judging each by the newest record that lists it, notes the date in the Vault&apos;s .keelhold-verified.json, and exits 1 if any file differs or is missing, or an event was kept only in part.</source>
        <extracomment>verify is a command&apos;s name; manifest.json and .keelhold-verified.json are file names</extracomment>
        <translation>列出、移除或重新校验保险库文件夹中留存的事件。
verify 会重新读取 manifest.json 列出的每个文件，以列出该文件的最新记录为准进行判断，将日期记入保险库的 .keelhold-verified.json；如有任何文件不符或缺失，或有事件只留存了一部分，则以 1 退出。</translation>
    </message>
    <message>
        <source>list, remove or verify.</source>
        <extracomment>list, remove and verify are typed on the command line; keep them as they are</extracomment>
        <translation>list、remove 或 verify。</translation>
    </message>
    <message>
        <source>Nothing was kept</source>
        <translation>未留存任何内容</translation>
    </message>
    <message>
        <source>Keeps what is new from every TeslaCam drive that is connected, now and until stopped: Sentry and saved events, and recent driving with --recent, each file checked as it is copied. Prints one line for each drive it kept from, and tells the desktop when it is done. Stop it with Ctrl-C; a keep in progress ends cleanly first.</source>
        <translation>在每个特斯拉 U 盘连接时留存其中的新内容，从现在起直到停止：哨兵事件和保存的事件，使用 --recent 时还包括最近行驶记录，每个文件都在复制时校验。每留存一个 U 盘就输出一行，并在完成时通知桌面。用 Ctrl-C 停止；正在进行的留存会先完整结束。</translation>
    </message>
    <message>
        <source>The Vault folder (the one chosen in Keelhold when not given).</source>
        <translation>保险库文件夹（未指定时使用在 Keelhold 中选择的文件夹）。</translation>
    </message>
    <message>
        <source>Keep recent driving too, each minute once.</source>
        <translation>同时留存最近行驶记录，每分钟的录像只留存一次。</translation>
    </message>
    <message>
        <source>Watch only drives mounted at or below this folder (repeat for more; the default is /media, /run/media and /mnt).</source>
        <translation>只监视挂载在此文件夹或其子目录下的 U 盘（可重复指定多个；默认为 /media、/run/media 和 /mnt）。</translation>
    </message>
    <message>
        <source>No Vault folder is chosen yet. Choose one in Keelhold, or give one with --vault.</source>
        <translation>尚未选择保险库文件夹。请在 Keelhold 中选择一个，或用 --vault 指定。</translation>
    </message>
    <message>
        <source>Watching for TeslaCam drives; new footage goes to %1. Ctrl-C stops.</source>
        <translation>正在等待特斯拉 U 盘接入；新录像将保存到 %1。按 Ctrl-C 停止。</translation>
    </message>
</context>
<context>
    <name>CombinedExport</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>“%1”处已有文件。</translation>
    </message>
    <message>
        <source>None of this event&apos;s cameras has playable footage.</source>
        <translation>此事件的所有摄像头都没有可播放的录像。</translation>
    </message>
    <message>
        <source>The folder “%1” doesn&apos;t exist.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>The chosen stretch lies outside this event&apos;s footage.</source>
        <translation>所选时段不在此事件的录像范围内。</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be given its name “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>无法将视频命名为“%1”。</translation>
    </message>
</context>
<context>
    <name>CombinedRender</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>无法写入视频。</translation>
    </message>
</context>
<context>
    <name>CompositeGraph</name>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;</extracomment>
        <translation>无法合成视频画面（%1）。</translation>
    </message>
    <message>
        <source>The movie&apos;s pictures couldn&apos;t be put together (%1: %2).</source>
        <extracomment>%1 is the step that failed, e.g. &quot;stacking&quot;; %2 the video library&apos;s reason</extracomment>
        <translation>无法合成视频画面（%1：%2）。</translation>
    </message>
    <message>
        <source>no %1 filter</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>缺少 %1 滤镜</translation>
    </message>
    <message>
        <source>linking %1</source>
        <extracomment>Step of putting a movie&apos;s pictures together: %1 is a video filter&apos;s name</extracomment>
        <translation>连接 %1</translation>
    </message>
    <message>
        <source>configuring</source>
        <extracomment>Step of putting a movie&apos;s pictures together: setting up the video filters</extracomment>
        <translation>配置</translation>
    </message>
    <message>
        <source>memory</source>
        <extracomment>Step of putting a movie&apos;s pictures together: getting memory</extracomment>
        <translation>内存</translation>
    </message>
    <message>
        <source>drawing a name</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing words on a picture</extracomment>
        <translation>绘制名称</translation>
    </message>
    <message>
        <source>no cameras</source>
        <extracomment>Step of putting a movie&apos;s pictures together: there were no cameras to show</extracomment>
        <translation>没有摄像头</translation>
    </message>
    <message>
        <source>unknown picture format</source>
        <extracomment>Step of putting a movie&apos;s pictures together: a camera&apos;s picture format was not known</extracomment>
        <translation>未知画面格式</translation>
    </message>
    <message>
        <source>adding a picture</source>
        <extracomment>Step of putting a movie&apos;s pictures together: adding a camera&apos;s picture</extracomment>
        <translation>添加画面</translation>
    </message>
    <message>
        <source>ending</source>
        <extracomment>Step of putting a movie&apos;s pictures together: ending the movie</extracomment>
        <translation>结束</translation>
    </message>
    <message>
        <source>stacking</source>
        <extracomment>Step of putting a movie&apos;s pictures together: putting the cameras side by side</extracomment>
        <translation>拼接</translation>
    </message>
    <message>
        <source>drawing the time</source>
        <extracomment>Step of putting a movie&apos;s pictures together: drawing the date and time</extracomment>
        <translation>绘制时间</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>Tesla Footage Viewer</source>
        <translation>特斯拉录像查看器</translation>
    </message>
    <message>
        <source>Review the footage your Tesla recorded and keep what matters</source>
        <translation>查看您的特斯拉录制的录像，并留存重要的内容</translation>
    </message>
    <message>
        <source>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;</source>
        <extracomment>Search words for the desktop&apos;s menu, each ending in a semicolon; keep the English ones and add your language&apos;s</extracomment>
        <translation>Tesla;TeslaCam;Sentry;Dashcam;Dashboard camera;USB;Vault;特斯拉;哨兵模式;哨兵;行车记录仪;录像;U盘;保险库;</translation>
    </message>
    <message>
        <source>Review and keep your Tesla&apos;s camera footage</source>
        <translation>查看并留存您特斯拉的摄像头录像</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>your drive</source>
        <comment>a keep&apos;s drive without a name</comment>
        <translation>您的 U 盘</translation>
    </message>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n 个哨兵事件尚未留存</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is connected with Sentry events that aren&apos;t in your Vault.</source>
        <translation>%1 已连接，其中有尚未放入您保险库的哨兵事件。</translation>
    </message>
</context>
<context>
    <name>DesktopNotifier</name>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>DriveBoundary</name>
    <message>
        <source>Keelhold never writes to your Tesla drive, so your Vault has to be a folder somewhere else.</source>
        <translation>Keelhold 绝不写入您的特斯拉 U 盘，因此您的保险库必须是其他位置的文件夹。</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the movie somewhere else.</source>
        <translation>Keelhold 绝不写入您的特斯拉 U 盘，因此请将视频保存到其他位置。</translation>
    </message>
</context>
<context>
    <name>DriveSession</name>
    <message>
        <source>Getting started…</source>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>Loading sample footage…</source>
        <translation>正在载入示例录像…</translation>
    </message>
</context>
<context>
    <name>DrivingDataOverlay</name>
    <message>
        <source>mph</source>
        <extracomment>Speed units under the speed; keep them short</extracomment>
        <translation>mph</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
</context>
<context>
    <name>DrivingDataPanel</name>
    <message>
        <source>Steering %1</source>
        <extracomment>Driving data drawn over an exported movie: %1 is the wheel&apos;s angle, e.g. &quot;12° left&quot;</extracomment>
        <translation>方向盘 %1</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Word on the brake lamp of the driving data drawn over an exported movie; keep it short</extracomment>
        <translation>刹车</translation>
    </message>
</context>
<context>
    <name>DrivingDataText</name>
    <message>
        <source>Autopilot</source>
        <extracomment>Driver assistance engaged: the car steers (Tesla&apos;s name)</extracomment>
        <translation>自动辅助驾驶</translation>
    </message>
    <message>
        <source>Traffic-aware cruise</source>
        <extracomment>Driver assistance engaged: the car keeps speed and distance only</extracomment>
        <translation>主动巡航控制</translation>
    </message>
    <message>
        <source>Self-driving</source>
        <extracomment>Driver assistance engaged: Full Self-Driving</extracomment>
        <translation>完全自动驾驶</translation>
    </message>
    <message>
        <source>N</source>
        <extracomment>Compass point abbreviation: north</extracomment>
        <translation>北</translation>
    </message>
    <message>
        <source>NE</source>
        <extracomment>Compass point abbreviation: north-east</extracomment>
        <translation>东北</translation>
    </message>
    <message>
        <source>E</source>
        <extracomment>Compass point abbreviation: east</extracomment>
        <translation>东</translation>
    </message>
    <message>
        <source>SE</source>
        <extracomment>Compass point abbreviation: south-east</extracomment>
        <translation>东南</translation>
    </message>
    <message>
        <source>S</source>
        <extracomment>Compass point abbreviation: south</extracomment>
        <translation>南</translation>
    </message>
    <message>
        <source>SW</source>
        <extracomment>Compass point abbreviation: south-west</extracomment>
        <translation>西南</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>Compass point abbreviation: west</extracomment>
        <translation>西</translation>
    </message>
    <message>
        <source>NW</source>
        <extracomment>Compass point abbreviation: north-west</extracomment>
        <translation>西北</translation>
    </message>
    <message>
        <source>%1 %2°</source>
        <extracomment>Heading of the car: %1 is a compass point (e.g. NE), %2 whole degrees</extracomment>
        <translation>%1 %2°</translation>
    </message>
    <message>
        <source>%1° right</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the right</extracomment>
        <translation>右 %1°</translation>
    </message>
    <message>
        <source>%1° left</source>
        <extracomment>Steering wheel angle in whole degrees, turned to the left</extracomment>
        <translation>左 %1°</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Sentry</source>
        <extracomment>Kind of event: footage Sentry Mode kept while the car was parked</extracomment>
        <translation>哨兵</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind of event: footage the driver saved (button or honk)</extracomment>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind of event: the car&apos;s rolling recording of the last hour of driving</extracomment>
        <translation>最近行驶</translation>
    </message>
</context>
<context>
    <name>EventMapPresenter</name>
    <message>
        <source>All located events</source>
        <extracomment>Heading in the map&apos;s list over the events with a place</extracomment>
        <translation>所有有位置的事件</translation>
    </message>
    <message>
        <source>No location recorded</source>
        <extracomment>Heading in the map&apos;s list over the events without a place</extracomment>
        <translation>未记录位置</translation>
    </message>
    <message>
        <source>No events have a location yet</source>
        <translation>还没有带位置的事件</translation>
    </message>
    <message>
        <source>Your car only records a location for some events. Once you have events with a place attached, they&apos;ll appear here as pins.</source>
        <translation>您的车辆只为部分事件记录位置。有了带位置的事件后，它们会以图钉的形式显示在这里。</translation>
    </message>
</context>
<context>
    <name>EventMapView</name>
    <message>
        <source>%1, %2</source>
        <extracomment>Screen reader name of a kept event&apos;s pin: its reason, then &quot;Kept in your Vault&quot;
----------
Screen reader name of a row in the map&apos;s list: the event&apos;s reason, then its date and time</extracomment>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>EventPlayerPresenter</name>
    <message>
        <source>Coordinates as recorded by your car — useful for an insurance or police report.</source>
        <translation>车辆记录的坐标——可用于保险或报警材料。</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>于 %1 从 %2 留存</translation>
    </message>
    <message>
        <source>Loading cameras…</source>
        <translation>正在载入摄像头…</translation>
    </message>
    <message>
        <source>No playable footage for this event</source>
        <translation>此事件没有可播放的录像</translation>
    </message>
    <message>
        <source>None of this event&apos;s camera angles could be read. The files are still safely on your drive — this can happen with a failing drive or a corrupted minute.</source>
        <translation>此事件的所有摄像头画面都无法读取。文件仍完好地保存在您的 U 盘上——U 盘故障或某一分钟的录像损坏时可能出现这种情况。</translation>
    </message>
    <message>
        <source>Step back 5 seconds. (Left Arrow)</source>
        <translation>后退 5 秒。（Left Arrow）</translation>
    </message>
    <message>
        <source>Step forward 5 seconds. (Right Arrow)</source>
        <translation>前进 5 秒。（Right Arrow）</translation>
    </message>
    <message>
        <source>Step back one frame. (,)</source>
        <translation>后退一帧。（,）</translation>
    </message>
    <message>
        <source>Step forward one frame. (.)</source>
        <translation>前进一帧。（.）</translation>
    </message>
    <message>
        <source>Play or pause all cameras together, perfectly in sync. (Space)</source>
        <translation>同时播放或暂停所有摄像头，完全同步。（Space）</translation>
    </message>
    <message>
        <source>Moment</source>
        <extracomment>Button: jump to the moment the event happened</extracomment>
        <translation>事发时刻</translation>
    </message>
    <message>
        <source>Jump to just before the moment it happened — the honk, bump, or detection. (M)</source>
        <translation>跳到事发前一刻——鸣笛、碰撞或检测到动静之前。（M）</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label of the playback speed picker</extracomment>
        <translation>速度</translation>
    </message>
    <message>
        <source>Playback speed, from half speed to 4×.</source>
        <translation>播放速度，从半速到 4×。</translation>
    </message>
    <message>
        <source>Show All Cameras</source>
        <translation>显示所有摄像头</translation>
    </message>
    <message>
        <source>Return to the full camera grid.</source>
        <translation>返回完整的摄像头网格。</translation>
    </message>
    <message>
        <source>Drag to jump to any moment. Every camera stays in sync.</source>
        <translation>拖动可跳到任意时刻。所有摄像头保持同步。</translation>
    </message>
    <message>
        <source>Playback position</source>
        <translation>播放位置</translation>
    </message>
    <message>
        <source>Keep a safe copy on this %1</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>在这台%1上留存一份安全副本</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>留存</translation>
    </message>
    <message>
        <source>Copies this footage to your Vault and verifies it matches byte-for-byte. Nothing on your drive is ever changed or deleted. (K)</source>
        <translation>将此录像复制到您的保险库，并逐字节校验是否一致。U 盘上的任何内容都不会被更改或删除。（K）</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Hide this from your inbox. This never deletes anything from your drive or Vault. (D)</source>
        <translation>从收件箱中隐藏此项。这绝不会删除 U 盘或保险库中的任何内容。（D）</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>导出与分享</translation>
    </message>
    <message>
        <source>Save one camera&apos;s footage as its own file and hand it off by email, or save it to a folder.</source>
        <translation>将某个摄像头的录像另存为单独的文件，并通过电子邮件发送，或保存到文件夹。</translation>
    </message>
    <message>
        <source>Fill the window with just the cameras. (F, Esc to go back)</source>
        <translation>让摄像头画面铺满窗口。（F，按 Esc 返回）</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>已校验副本</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>此副本在留存时已与您的 U 盘逐字节比对。点击查看技术细节。</translation>
    </message>
    <message>
        <source>Faithful Copy</source>
        <translation>原样副本</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>下列每个文件都已复制，并在当时将其校验和（SHA-256）与您 U 盘上的原始文件进行了比对——是一份原样、未经改动的副本。这是技术上的完整性检查，并非法律认证。</translation>
    </message>
    <message>
        <source>Export finished</source>
        <translation>导出完成</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <extracomment>%1 is the file&apos;s name</extracomment>
        <translation>%1 已就绪。</translation>
    </message>
    <message>
        <source>Export didn&apos;t finish</source>
        <translation>导出未完成</translation>
    </message>
</context>
<context>
    <name>EventTimeline</name>
    <message>
        <source>Unlock to watch</source>
        <extracomment>On a camera&apos;s tile: encrypted footage that needs its keys first</extracomment>
        <translation>解锁后观看</translation>
    </message>
    <message>
        <source>This angle didn&apos;t record properly — a known Tesla drive issue.</source>
        <extracomment>On a camera&apos;s tile: its footage is damaged</extracomment>
        <translation>此视角未正常录制——这是特斯拉 U 盘的已知问题。</translation>
    </message>
    <message>
        <source>No footage this minute.</source>
        <extracomment>On a camera&apos;s tile: the car wrote nothing for this camera at this time</extracomment>
        <translation>这一分钟没有录像。</translation>
    </message>
</context>
<context>
    <name>EvidencePackage</name>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it is no longer there.</source>
        <translation>无法从 U 盘读取 %1——它已不在那里。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it isn&apos;t an ordinary file.</source>
        <translation>无法从 U 盘读取 %1——它不是普通文件。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the system refused to open it.</source>
        <translation>无法从 U 盘读取 %1——系统拒绝打开它。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — the drive reported an error.</source>
        <translation>无法从 U 盘读取 %1——U 盘报告了错误。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk is full.</source>
        <translation>无法在那里写入证据包——磁盘已满。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder can&apos;t be written to.</source>
        <translation>无法在那里写入证据包——该文件夹不可写入。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — that folder doesn&apos;t exist.</source>
        <translation>无法在那里写入证据包——该文件夹不存在。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — a folder already has that name.</source>
        <translation>无法在那里写入证据包——已有同名文件夹。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write the package there — the disk reported an error.</source>
        <translation>无法在那里写入证据包——磁盘报告了错误。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1 from the drive — it stopped answering.</source>
        <translation>无法从 U 盘读取 %1——它已停止响应。</translation>
    </message>
    <message>
        <source>%1 changed while the package was being made — the package was not made.</source>
        <translation>生成证据包期间 %1 发生了变化——未生成证据包。</translation>
    </message>
    <message>
        <source>%1 changed since the report was made — the package was not made.</source>
        <translation>%1 在生成报告后发生了变化——未生成证据包。</translation>
    </message>
    <message>
        <source>Keelhold never writes to your Tesla drive, so save the package somewhere else.</source>
        <translation>Keelhold 绝不写入您的特斯拉 U 盘，因此请将证据包保存到其他位置。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be a name inside the package — the package was not made.</source>
        <translation>%1 不能用作证据包中的名称——未生成证据包。</translation>
    </message>
</context>
<context>
    <name>ExportError</name>
    <message>
        <source>Unknown export failure.</source>
        <translation>未知的导出错误。</translation>
    </message>
    <message>
        <source>There is no playable footage from this camera in this event.</source>
        <translation>此事件中没有该摄像头的可播放录像。</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be put together into one movie.</source>
        <translation>无法将录像合并为一个视频。</translation>
    </message>
    <message>
        <source>This footage can&apos;t be written as an MP4 movie with the video tools on this computer.</source>
        <translation>使用这台电脑上的视频工具，无法将此录像写出为 MP4 视频。</translation>
    </message>
    <message>
        <source>The export was stopped.</source>
        <translation>导出已停止。</translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message>
        <source>Put together what an insurer, the police or a lawyer asks for: when and where it happened, what each camera saw, how the car was driven, and every original file with a way to check it.</source>
        <translation>整理保险公司、警方或律师需要的材料：事发时间和地点、各摄像头拍到的内容、车辆的驾驶情况，以及每个原始文件和核对它们的方法。</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>还剩几秒</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>还剩约 %n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>还剩约一分钟</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>还剩约 %n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <extracomment>%1 is a number of hours with one decimal, e.g. 1.5</extracomment>
        <translation>还剩约 %1 小时</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>第 %1/%2 帧</translation>
    </message>
    <message>
        <source>%1× real time</source>
        <extracomment>How fast the movie is made: 1.8× real time</extracomment>
        <translation>%1× 实时速度</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <extracomment>%1 is the exported file&apos;s name</extracomment>
        <translation>已就绪：%1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 is the saved file&apos;s name</extracomment>
        <translation>已另存为 %1</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Label of the camera picker</extracomment>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>Export as</source>
        <translation>导出为</translation>
    </message>
    <message>
        <source>One camera (original quality)</source>
        <translation>单个摄像头（原始画质）</translation>
    </message>
    <message>
        <source>Grid of every camera</source>
        <translation>所有摄像头网格</translation>
    </message>
    <message>
        <source>Front and sides</source>
        <translation>前方与两侧</translation>
    </message>
    <message>
        <source>One camera with overlay</source>
        <translation>单个摄像头（带叠加信息）</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>Label over the overlay choices: which details the movie shows over the video</extracomment>
        <translation>显示</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Camera names</source>
        <translation>摄像头名称</translation>
    </message>
    <message>
        <source>Reason and place</source>
        <translation>原因和地点</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>驾驶数据</translation>
    </message>
    <message>
        <source>No driving data in these clips</source>
        <translation>这些片段中没有驾驶数据</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Label over the movie&apos;s picture size choices</extracomment>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>720p</source>
        <extracomment>Picture size: 720 lines high</extracomment>
        <translation>720p</translation>
    </message>
    <message>
        <source>1080p</source>
        <extracomment>Picture size: 1080 lines high</extracomment>
        <translation>1080p</translation>
    </message>
    <message>
        <source>Full resolution</source>
        <translation>全分辨率</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Label over the choices of which part of the event to export</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>Whole event</source>
        <translation>整个事件</translation>
    </message>
    <message>
        <source>From the moment</source>
        <translation>从事发时刻起</translation>
    </message>
    <message>
        <source>From 10 seconds before the moment it happened to 20 seconds after.</source>
        <translation>从事发前 10 秒到事发后 20 秒。</translation>
    </message>
    <message>
        <source>Custom</source>
        <extracomment>A part of the event the user sets by start and end</extracomment>
        <translation>自定义</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>从事件的</translation>
    </message>
    <message>
        <source>to</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>到</translation>
    </message>
    <message>
        <source>into the event</source>
        <extracomment>Reads &quot;From [0:10] to [0:40] into the event&quot;</extracomment>
        <translation>处</translation>
    </message>
    <message>
        <source>The end has to come after the start.</source>
        <translation>结束时间必须晚于开始时间。</translation>
    </message>
    <message>
        <source>Finishing the file…</source>
        <translation>正在完成文件…</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>正在导出…</translation>
    </message>
    <message>
        <source>Saving a copy…</source>
        <translation>正在保存副本…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>Button that starts the export</extracomment>
        <translation>导出</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a running export</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the finished export dialog</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Opens the folder that holds the file, with the file selected.</source>
        <translation>打开包含该文件的文件夹，并选中该文件。</translation>
    </message>
    <message>
        <source>Email…</source>
        <translation>电子邮件…</translation>
    </message>
    <message>
        <source>Starts a new email with the file attached.</source>
        <translation>新建一封附带该文件的电子邮件。</translation>
    </message>
    <message>
        <source>Save to…</source>
        <translation>保存到…</translation>
    </message>
    <message>
        <source>Choose exactly where on your %1 to save this file.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>精确选择将此文件保存在您%1上的位置。</translation>
    </message>
    <message>
        <source>MPEG-4 movie (*.mp4)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.mp4)&quot; as it is</extracomment>
        <translation>MPEG-4 视频 (*.mp4)</translation>
    </message>
    <message>
        <source>Incident Report (PDF)</source>
        <translation>事故报告（PDF）</translation>
    </message>
    <message>
        <source>Evidence Package (ZIP)</source>
        <translation>证据包（ZIP）</translation>
    </message>
    <message>
        <source>When and where, each camera at the moment, the driving data, and every original file with its SHA-256, ready for an insurer or the police.</source>
        <translation>时间和地点、事发时刻各摄像头的画面、驾驶数据，以及每个原始文件及其 SHA-256，可直接提供给保险公司或警方。</translation>
    </message>
    <message>
        <source>The report, every original file exactly as the car wrote it, and a SHA256SUMS file anyone can check them with, in one ZIP.</source>
        <extracomment>SHA256SUMS is a file name; keep it as it is</extracomment>
        <translation>报告、与车辆写入时完全相同的每个原始文件，以及任何人都可用来核对它们的 SHA256SUMS 文件，打包在一个 ZIP 中。</translation>
    </message>
    <message>
        <source>Include unlock keys</source>
        <translation>包含解锁密钥</translation>
    </message>
    <message>
        <source>Lets whoever receives the package play the encrypted footage. Anyone with the keys can watch it.</source>
        <translation>让收到证据包的人能够播放加密录像。任何拥有这些密钥的人都能观看。</translation>
    </message>
    <message>
        <source>Making the report…</source>
        <translation>正在生成报告…</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.pdf)&quot; as it is</extracomment>
        <translation>PDF 文档 (*.pdf)</translation>
    </message>
    <message>
        <source>ZIP archive (*.zip)</source>
        <extracomment>File type filter of the save dialog; keep &quot;(*.zip)&quot; as it is</extracomment>
        <translation>ZIP 压缩包 (*.zip)</translation>
    </message>
    <message>
        <source>Export &amp; Share</source>
        <translation>导出与分享</translation>
    </message>
    <message>
        <source>Save this event as its own video file, ready to send to an insurer, police, or anyone else who needs it: one camera exactly as recorded, or every camera in one movie.</source>
        <translation>将此事件另存为单独的视频文件，便于发送给保险公司、警方或其他需要的人：可以是按原样录制的单个摄像头，也可以是所有摄像头合成的一个视频。</translation>
    </message>
    <message>
        <source>This couldn&apos;t be exported right now. Your original footage on the drive is untouched — you can try again.</source>
        <translation>目前无法导出。U 盘上的原始录像完好无损——您可以重试。</translation>
    </message>
    <message>
        <source>Couldn&apos;t save there — try a different folder.</source>
        <translation>无法保存到那里——请换一个文件夹。</translation>
    </message>
    <message>
        <source>Stops the export. Your original footage is untouched either way.</source>
        <translation>停止导出。无论如何，您的原始录像都不会受影响。</translation>
    </message>
</context>
<context>
    <name>ExportSession</name>
    <message>
        <source>The movie couldn&apos;t be written.</source>
        <translation>无法写入视频。</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>内存不足，无法导出录像。</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>The chosen stretch lies outside this camera&apos;s footage.</source>
        <translation>所选时段不在此摄像头的录像范围内。</translation>
    </message>
    <message>
        <source>This camera&apos;s clips are too damaged to make a movie that keeps its own timing.</source>
        <translation>此摄像头的片段损坏过于严重，无法生成保持原有时间的视频。</translation>
    </message>
</context>
<context>
    <name>FailureScreens</name>
    <message>
        <source>Choose a Different Drive</source>
        <translation>选择其他 U 盘</translation>
    </message>
    <message>
        <source>Tesla dashcam and Sentry footage always lives in a folder named &quot;TeslaCam&quot; at the top level of the drive. If this is the right drive, make sure Dashcam Recording is turned on in your car&apos;s settings.</source>
        <extracomment>&quot;Dashcam Recording&quot; is the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>特斯拉行车记录仪和哨兵模式的录像始终位于 U 盘根目录下名为“TeslaCam”的文件夹中。如果这是正确的 U 盘，请确认车辆设置中已开启“行车记录仪”录制。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t have a TeslaCam folder on it, so it may not be the drive from your car.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>“%1”上没有 TeslaCam 文件夹，因此它可能不是您车上的 U 盘。</translation>
    </message>
    <message>
        <source>We couldn&apos;t find a TeslaCam folder</source>
        <translation>未找到 TeslaCam 文件夹</translation>
    </message>
    <message>
        <source>Your car needs a drive formatted as exFAT (or FAT32 for smaller drives), and this one is %1. Back up anything important from it first, then reformat it using %2 (choose &quot;ExFAT&quot;) and reinsert it into your car so it can start recording.</source>
        <extracomment>%1 is the drive&apos;s format (e.g. NTFS), %2 a program that formats drives, e.g. &quot;a disk utility such as Disks&quot;. &quot;ExFAT&quot; is the choice as the program names it</extracomment>
        <translation>您的车辆需要格式化为 exFAT（较小的 U 盘也可用 FAT32）的 U 盘，而这个 U 盘是 %1。请先备份其中的重要内容，然后使用%2重新格式化（选择“ExFAT”），再插回车上，车辆即可开始录制。</translation>
    </message>
    <message>
        <source>This drive needs to be reformatted</source>
        <translation>此 U 盘需要重新格式化</translation>
    </message>
    <message>
        <source>We need you to point us back to your Tesla drive</source>
        <translation>请重新为我们指定您的特斯拉 U 盘</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Tesla drive again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1有时会要求应用重新确认文件夹访问权限——例如在 U 盘改名或拔出后重新插入之后。这没有任何问题，也没有丢失任何内容；只需再次选择特斯拉 U 盘，一切都会从中断处继续。</translation>
    </message>
    <message>
        <source>Choose Tesla drive</source>
        <translation>选择特斯拉 U 盘</translation>
    </message>
    <message>
        <source>We need you to point us back to your Vault folder</source>
        <translation>请重新为我们指定您的保险库文件夹</translation>
    </message>
    <message>
        <source>%1 asks apps to re-confirm folder access sometimes — for example after a drive is renamed or unplugged and replugged. Nothing is wrong and nothing was lost; just pick the Vault folder again and everything will pick up where it left off.</source>
        <extracomment>%1 is the operating system, e.g. &quot;Your system&quot;</extracomment>
        <translation>%1有时会要求应用重新确认文件夹访问权限——例如在 U 盘改名或拔出后重新插入之后。这没有任何问题，也没有丢失任何内容；只需再次选择保险库文件夹，一切都会从中断处继续。</translation>
    </message>
    <message>
        <source>Choose Vault folder</source>
        <translation>选择保险库文件夹</translation>
    </message>
    <message>
        <source>This drive doesn&apos;t have any footage yet</source>
        <translation>此 U 盘上还没有录像</translation>
    </message>
    <message>
        <source>We found a TeslaCam folder, but there&apos;s nothing in it yet. Your car saves footage here as you drive and while it&apos;s parked with Sentry Mode on — check back after your next drive.</source>
        <translation>我们找到了 TeslaCam 文件夹，但其中还没有内容。您驾驶时以及停车并开启哨兵模式时，车辆会把录像保存在这里——下次驾驶后再来看看吧。</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam clips so only your Tesla account can view them. This isn&apos;t damage or an error — Keelhold still safely backs these files up exactly as they are, and encrypted clips can be watched anytime at %1. Want future footage to play right here? There&apos;s a 30-second setting in your car.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>较新的特斯拉软件可以加密行车记录仪片段，使只有您的特斯拉账户才能查看。这不是损坏或错误——Keelhold 仍会按原样安全备份这些文件，加密片段随时可在 %1 观看。希望以后的录像能直接在这里播放？只需在车上花 30 秒更改一项设置。</translation>
    </message>
    <message>
        <source>Your car is encrypting this footage</source>
        <translation>您的车辆正在加密此录像</translation>
    </message>
    <message>
        <source>Show Me the 30-Second Fix</source>
        <translation>告诉我 30 秒解决方法</translation>
    </message>
    <message>
        <source>Your drive was disconnected</source>
        <translation>U 盘已断开连接</translation>
    </message>
    <message>
        <source>No problem — nothing was lost. Whatever was in progress is paused and will pick back up right where it left off as soon as you plug the drive back in.</source>
        <translation>没关系——没有丢失任何内容。进行中的操作已暂停，重新插入 U 盘后会立即从中断处继续。</translation>
    </message>
</context>
<context>
    <name>FileHandOff</name>
    <message>
        <source>Show the file in its folder, or attach it to a new email.</source>
        <translation>在文件夹中显示该文件，或将其附加到新电子邮件。</translation>
    </message>
</context>
<context>
    <name>H264Encoder</name>
    <message>
        <source>There wasn&apos;t enough memory to export the footage.</source>
        <translation>内存不足，无法导出录像。</translation>
    </message>
    <message>
        <source>The movie&apos;s video encoder couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法启动视频编码器：%1。</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法编码录像：%1。</translation>
    </message>
</context>
<context>
    <name>HardMoment</name>
    <message>
        <source>Hard braking</source>
        <translation>急刹车</translation>
    </message>
    <message>
        <source>Swerve</source>
        <translation>急转向</translation>
    </message>
    <message>
        <source>Sudden stop</source>
        <translation>急停</translation>
    </message>
    <message>
        <source>Emergency braking</source>
        <translation>紧急制动</translation>
    </message>
    <message>
        <source>Self-Driving off</source>
        <translation>完全自动驾驶关闭</translation>
    </message>
    <message>
        <source>Cruise control off</source>
        <translation>巡航控制关闭</translation>
    </message>
    <message>
        <source>Autosteer off</source>
        <translation>自动辅助转向关闭</translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message>
        <source>These clips are in a folder on this %1, not on your car&apos;s drive, so there&apos;s nothing to reformat.</source>
        <extracomment>%1 is the word for the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>这些片段位于这台%1上的文件夹中，而不在您车辆的 U 盘上，因此无需重新格式化。</translation>
    </message>
    <message>
        <source>Your drive is formatted exFAT — exactly what your Tesla expects. No action needed.</source>
        <translation>您的 U 盘格式为 exFAT——正是特斯拉所需要的。无需任何操作。</translation>
    </message>
    <message>
        <source>Your drive is formatted FAT32. Older Tesla software prefers exFAT for drives over 32 GB — if you ever see recording gaps, reformatting to exFAT (in %1, after backing up) can help.</source>
        <extracomment>%1 names the tool to format a drive with, e.g. &quot;a disk utility such as Disks&quot;</extracomment>
        <translation>您的 U 盘格式为 FAT32。对于超过 32 GB 的 U 盘，较旧的特斯拉软件更适合 exFAT——如果您发现录像有中断，可以先备份，再使用%1重新格式化为 exFAT，这可能会有帮助。</translation>
    </message>
    <message>
        <source>Your drive is formatted %1, which your car can record to. exFAT is the most widely used choice if you also read it on other computers.</source>
        <extracomment>%1 is a file system name, e.g. ext4</extracomment>
        <translation>您的 U 盘格式为 %1，车辆可以向其录制。如果您还要在其他电脑上读取它，exFAT 是最通用的选择。</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car cannot record to. Reformat it to exFAT before using it as a dashcam drive.</source>
        <extracomment>%1 is a file system name, e.g. NTFS</extracomment>
        <translation>此 U 盘格式为 %1，车辆无法向其录制。用作行车记录仪 U 盘前，请将其重新格式化为 exFAT。</translation>
    </message>
    <message>
        <source>This drive is formatted %1, which your car may not fully support. exFAT is the safest choice.</source>
        <extracomment>%1 is a file system name</extracomment>
        <translation>此 U 盘格式为 %1，车辆可能无法完全支持。exFAT 是最稳妥的选择。</translation>
    </message>
    <message>
        <source>We couldn&apos;t determine how this drive is formatted.</source>
        <translation>无法确定此 U 盘的格式。</translation>
    </message>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>备份 %n 个新事件</numerusform>
        </translation>
    </message>
    <message>
        <source>These moments are only on your car&apos;s drive right now. Keep them so they&apos;re safe even if the drive fills up or fails.</source>
        <translation>这些时刻目前只保存在您车辆的 U 盘上。请留存它们，这样即使 U 盘写满或损坏，它们也是安全的。</translation>
    </message>
    <message>
        <source>%1% full — normal for a Tesla drive</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>已用 %1%——对特斯拉 U 盘来说很正常</translation>
    </message>
    <message>
        <source>The car reuses space by overwriting its oldest footage. That&apos;s expected, not a problem — back up anything you want to keep from the recommendation above.</source>
        <translation>车辆会覆盖最旧的录像来重复利用空间。这是预期行为，不是问题——请根据上方的建议备份您想留存的内容。</translation>
    </message>
    <message>
        <source>Drive is %1% full</source>
        <extracomment>%1 is a whole percentage; the % sign follows it</extracomment>
        <translation>U 盘已用 %1%</translation>
    </message>
    <message>
        <source>Nothing urgent yet, but it&apos;s worth backing up regularly so you&apos;re never caught out.</source>
        <translation>暂时没有紧急情况，但建议定期备份，以免措手不及。</translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n 个片段未正常录制</numerusform>
        </translation>
    </message>
    <message>
        <source>A small number of damaged clips is normal and not something to worry about.</source>
        <translation>少量损坏的片段属于正常现象，无需担心。</translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives, especially cheaper or older ones. Consider a bigger-name USB 3.0 drive if this keeps happening.</source>
        <translation>这是某些特斯拉 U 盘的已知问题，尤其是较便宜或较旧的 U 盘。如果经常出现这种情况，可以考虑换用知名品牌的 USB 3.0 U 盘。</translation>
    </message>
    <message>
        <source>Some clips are encrypted by your car</source>
        <translation>部分片段已被您的车辆加密</translation>
    </message>
    <message>
        <source>Recent Tesla software can encrypt dashcam footage. Keelhold can still back these up — see Help for how to view them.</source>
        <translation>较新的特斯拉软件可以加密行车记录仪录像。Keelhold 仍能备份这些录像——查看方法请参阅帮助。</translation>
    </message>
    <message>
        <source>Everything looks good</source>
        <translation>一切正常</translation>
    </message>
    <message>
        <source>Your drive is healthy and up to date. Nothing needs your attention right now.</source>
        <translation>您的 U 盘状况良好，一切都是最新的。目前没有需要您关注的事项。</translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message>
        <source>%1% full — normal for a Tesla drive. The car reuses space by overwriting its oldest footage.</source>
        <extracomment>%1 is a whole percentage; &quot;%1% full&quot; reads &quot;90% full&quot;</extracomment>
        <translation>已用 %1%——对特斯拉 U 盘来说很正常。车辆会覆盖最旧的录像来重复利用空间。</translation>
    </message>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>您有 %n 个事件尚未备份——请参阅下方的建议。</numerusform>
        </translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation>可用空间</translation>
    </message>
    <message>
        <source>We couldn&apos;t read this drive&apos;s capacity.</source>
        <translation>无法读取此 U 盘的容量。</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>Heading: the drive&apos;s file system format (exFAT, FAT32, …)</extracomment>
        <translation>格式</translation>
    </message>
    <message>
        <source>Footage Condition</source>
        <translation>录像状况</translation>
    </message>
    <message>
        <source>Still checking your footage for damage — check back shortly.</source>
        <translation>仍在检查录像是否有损坏——请稍后再来查看。</translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>已检查的 %n 个片段全部完好。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>已检查的 %n 个片段中有 %1 个未正常录制。</numerusform>
        </translation>
    </message>
    <message>
        <source>This is a known issue with some Tesla USB drives and isn&apos;t something you did.</source>
        <translation>这是某些特斯拉 U 盘的已知问题，并不是您的操作造成的。</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Some clips on this drive are encrypted by your car.</source>
        <translation>此 U 盘上的部分片段已被您的车辆加密。</translation>
    </message>
    <message>
        <source>Keelhold can still back these up as-is. Encrypted clips play at %1.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>Keelhold 仍能按原样备份这些片段。加密片段可在 %1 播放。</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>为以后的录像关闭加密…</translation>
    </message>
    <message>
        <source>A 30-second setting in your car. Everything already recorded is unaffected.</source>
        <translation>只需在车上花 30 秒更改一项设置。已录制的内容不受影响。</translation>
    </message>
    <message>
        <source>Recommendations</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>No drive health yet</source>
        <translation>尚无 U 盘健康信息</translation>
    </message>
    <message>
        <source>Scan a Tesla drive from the Drive tab to see its fullness, corruption rate, and format at a glance.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>从“U 盘”标签页扫描特斯拉 U 盘，即可一目了然地查看其已用空间、损坏率和格式。</translation>
    </message>
</context>
<context>
    <name>HelpArticle</name>
    <message>
        <source>What is Sentry Mode?</source>
        <translation>什么是哨兵模式？</translation>
    </message>
    <message>
        <source>Why are clips exactly one minute long?</source>
        <translation>为什么片段都正好是一分钟？</translation>
    </message>
    <message>
        <source>What does &quot;didn&apos;t record properly&quot; mean?</source>
        <extracomment>The quoted words are the app&apos;s own, from its message about damaged clips</extracomment>
        <translation>“未正常录制”是什么意思？</translation>
    </message>
    <message>
        <source>Why does it say some clips are encrypted?</source>
        <translation>为什么提示某些片段已加密？</translation>
    </message>
    <message>
        <source>How does the Vault keep my footage safe?</source>
        <translation>保险库如何确保我的录像安全？</translation>
    </message>
    <message>
        <source>Will this app ever change or delete anything on my drive?</source>
        <translation>此应用会更改或删除我 U 盘上的任何内容吗？</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Sentry Mode is your Tesla&apos;s built-in security system. While your car is parked, its cameras watch for people or objects that come close, or for a bump or impact. When something happens, the car saves a short recording from every camera into a &quot;Sentry event&quot; so you can review it later.</source>
        <translation>哨兵模式是您特斯拉内置的安全系统。车辆停放时，摄像头会留意靠近的人或物体，以及碰撞或撞击。一旦发生情况，车辆会将每个摄像头的一段短录像保存为一个“哨兵事件”，供您日后查看。</translation>
    </message>
    <message>
        <source>You can turn Sentry Mode on or off, and adjust its sensitivity, from your car&apos;s touchscreen under Safety &amp; Security.</source>
        <translation>您可以在车辆触摸屏的“安全”菜单中开启或关闭哨兵模式，并调整其灵敏度。</translation>
    </message>
    <message>
        <source>Your Tesla records in one-minute segments, one file per camera per minute, rather than one long continuous video. This is simply how the car&apos;s software is built — it makes the recordings easier for the car to manage and less likely to be lost all at once if something goes wrong.</source>
        <translation>您的特斯拉以一分钟为一段进行录制，每个摄像头每分钟一个文件，而不是一段很长的连续视频。这只是车辆软件的设计方式——这样车辆更容易管理录像，出现问题时也不太可能一下子全部丢失。</translation>
    </message>
    <message>
        <source>Keelhold stitches these one-minute files back together into a single, continuous timeline for you, so you never have to think about the individual files — you just scrub through one smooth timeline per event.</source>
        <translation>Keelhold 会为您把这些一分钟的文件重新拼接成一条连续的时间轴，因此您完全不必操心单个文件——每个事件只需在一条流畅的时间轴上拖动浏览即可。</translation>
    </message>
    <message>
        <source>Occasionally, a clip won&apos;t play — it might be zero bytes, cut off partway through, or simply unreadable. This is a well-known issue with Tesla USB drives, especially with lower-quality or aging drives, and it is not something you did.</source>
        <translation>偶尔会有片段无法播放——它可能是零字节、中途被截断，或者根本无法读取。这是特斯拉 U 盘众所周知的问题，尤其是质量较差或老化的 U 盘，并不是您的操作造成的。</translation>
    </message>
    <message>
        <source>When this happens, Keelhold shows that camera angle as a labeled placeholder instead of crashing or freezing, and counts it in Drive Health so you can see how often it&apos;s happening. If it happens a lot, a newer USB 3.0 drive from a reputable brand usually helps.</source>
        <translation>出现这种情况时，Keelhold 会用带标注的占位画面显示该摄像头视角，而不会崩溃或卡死，并在“U 盘健康”中计数，让您了解其发生的频率。如果经常出现，换用知名品牌的新 USB 3.0 U 盘通常会有帮助。</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt dashcam and Sentry clips so that only you can view them — this is a privacy feature, not damage or an error. Encrypted files still look like normal video files, but no app can decode their contents without the key of each clip.</source>
        <translation>较新的特斯拉软件可以加密行车记录仪和哨兵模式的片段，使只有您本人才能查看——这是一项隐私功能，而不是损坏或错误。加密文件看起来仍像普通视频文件，但没有每个片段的密钥，任何应用都无法解码其内容。</translation>
    </message>
    <message>
        <source>Keelhold safely backs up encrypted clips exactly as they are — the backup and verification steps work the same either way.</source>
        <translation>Keelhold 会按原样安全备份加密片段——无论是否加密，备份和校验步骤都完全相同。</translation>
    </message>
    <message>
        <source>To watch them here, choose “Unlock Encrypted Footage…” and sign in with your Tesla account. Keelhold then asks Tesla for each clip&apos;s key, sending only the clip&apos;s locked key and your car&apos;s VIN, never any video, and keeps the keys so the footage plays here from then on, even offline. You can also watch them at %1, where your browser fetches the keys the same way.</source>
        <translation>要在这里观看，请选择“解锁加密录像…”并用您的特斯拉账户登录。Keelhold 随后会向特斯拉请求每个片段的密钥，只发送片段中被锁定的密钥和车辆的 VIN，绝不发送任何视频；密钥会被保存下来，此后即使离线也能在这里播放这些录像。您也可以在 %1 观看，浏览器会以同样的方式获取密钥。</translation>
    </message>
    <message>
        <source>Want future footage to play right here instead? In your car: Controls → Safety → switch off &quot;Encrypt Dashcam Recordings&quot; (about 30 seconds — the app can walk you through it wherever you see the encryption notice). Everything already recorded is unaffected either way.</source>
        <extracomment>Controls, Safety and &quot;Encrypt Dashcam Recordings&quot; are named as on the car&apos;s touchscreen</extracomment>
        <translation>希望以后的录像能直接在这里播放？在车上：控制 → 安全 → 关闭“加密行车记录仪录像”（大约 30 秒——凡是看到加密提示的地方，应用都可以一步步引导您完成）。无论如何，已录制的内容都不受影响。</translation>
    </message>
    <message>
        <source>When you choose &quot;Keep&quot; on an event, Keelhold copies every file for that event to a folder you chose (your &quot;Vault&quot;) while checking the data as it copies. It then re-checks the copy&apos;s checksum (SHA-256) against the original to make sure the copy is a faithful, byte-for-byte match — you&apos;ll see it marked &quot;Verified copy&quot; afterward.</source>
        <extracomment>&quot;Keep&quot; and &quot;Verified copy&quot; are the app&apos;s own button and mark; translate them as there</extracomment>
        <translation>当您对某个事件选择“留存”时，Keelhold 会把该事件的每个文件复制到您选择的文件夹（即您的“保险库”），并在复制时检查数据。随后它会将副本的校验和（SHA-256）与原始文件再次比对，确保副本与原件逐字节完全一致——之后您会看到它被标记为“已校验副本”。</translation>
    </message>
    <message>
        <source>Your Vault works completely independently of your car&apos;s drive: once something is kept, you can browse and watch it any time, even with the Tesla drive unplugged or gone entirely. Re-importing the same drive later automatically recognizes anything already kept, so you never end up with duplicates.</source>
        <translation>您的保险库完全独立于车辆的 U 盘：内容一经留存，您就可以随时浏览和观看，即使特斯拉 U 盘已拔出或完全不在了也一样。以后再次导入同一个 U 盘时，会自动识别已留存的内容，因此绝不会产生重复。</translation>
    </message>
    <message>
        <source>No. Keelhold only ever reads from your Tesla&apos;s drive — no code path in this app writes to it, renames anything on it, or deletes anything from it. The only place this app writes to is the Vault folder you choose on your %1 (or another drive you pick).</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>不会。Keelhold 只会读取您特斯拉的 U 盘——此应用中没有任何代码会写入它、重命名其中的内容或从中删除任何东西。此应用唯一会写入的位置，是您在%1上（或您选择的其他磁盘上）选定的保险库文件夹。</translation>
    </message>
    <message>
        <source>This matters most right after something happens to your car: the drive from your glovebox is exactly as safe to hand to police or an insurer after using this app as it was before.</source>
        <translation>这在车辆出事后最为重要：使用此应用之后，您手套箱里的 U 盘交给警方或保险公司时，和使用之前一样原封未动。</translation>
    </message>
    <message>
        <source>You can review everything without touching the mouse:</source>
        <translation>您无需碰鼠标就能查看所有内容：</translation>
    </message>
    <message>
        <source>A quick reminder of these appears under the playback controls until you hide it — and you can always come back here.</source>
        <translation>在您隐藏之前，播放控件下方会显示这些快捷键的简要提示——您也随时可以回到这里查看。</translation>
    </message>
    <message>
        <source>Space — play or pause all cameras together</source>
        <extracomment>A line of the keyboard help: the key, a dash, what it does. Name keys as keyboards there mark them</extracomment>
        <translation>Space — 同时播放或暂停所有摄像头</translation>
    </message>
    <message>
        <source>← and → — skip back or forward 5 seconds</source>
        <translation>← 和 → — 后退或前进 5 秒</translation>
    </message>
    <message>
        <source>, and . — step one frame back or forward (pauses first)</source>
        <translation>, 和 . — 后退或前进一帧（会先暂停）</translation>
    </message>
    <message>
        <source>1 to 7 — jump straight to a camera (in the order shown in the grid)</source>
        <translation>1 到 7 — 直接跳到某个摄像头（按网格中显示的顺序）</translation>
    </message>
    <message>
        <source>0 — back to all cameras</source>
        <translation>0 — 返回所有摄像头</translation>
    </message>
    <message>
        <source>M — replay the moment it happened (just before the honk, bump, or detection)</source>
        <translation>M — 重播事发时刻（鸣笛、碰撞或检测到动静之前的一刻）</translation>
    </message>
    <message>
        <source>N and Shift+N — jump to the next or previous thing that happened: someone moving in front of a camera (that camera is enlarged), or a hard brake, swerve or Autosteer switching off</source>
        <translation>N 和 Shift+N — 跳到下一个或上一个发生的情况：有人在摄像头前移动（该摄像头会被放大），或急刹车、急转向、自动辅助转向关闭</translation>
    </message>
    <message>
        <source>F — fill the window with just the cameras (Esc goes back)</source>
        <translation>F — 让摄像头画面铺满窗口（按 Esc 返回）</translation>
    </message>
    <message>
        <source>T — show or hide the car&apos;s driving data over the video (speed, pedals, steering, Autopilot)</source>
        <translation>T — 在视频上显示或隐藏车辆的驾驶数据（车速、踏板、转向、自动辅助驾驶）</translation>
    </message>
    <message>
        <source>↑ and ↓ — move through the event list, auto-playing each one</source>
        <translation>↑ 和 ↓ — 在事件列表中上下移动，并自动播放每个事件</translation>
    </message>
    <message>
        <source>K — keep a safe copy of the selected event in your Vault</source>
        <translation>K — 将所选事件的安全副本留存到您的保险库</translation>
    </message>
    <message>
        <source>D — dismiss the selected event (never deletes any footage)</source>
        <translation>D — 忽略所选事件（绝不删除任何录像）</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Help</source>
        <extracomment>Heading over the list of help articles</extracomment>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>HelpWindowController</name>
    <message>
        <source>Keelhold Help</source>
        <translation>Keelhold 帮助</translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is the long date, %2 the time: &quot;Monday, 2 June 2025 at 2:11:05 AM&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <extracomment>Heading over the events of today</extracomment>
        <translation>今天</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>Heading over the events of yesterday</extracomment>
        <translation>昨天</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>A row&apos;s second line: the place, then the event&apos;s size on disk</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Details limited — footage intact</source>
        <translation>详细信息有限——录像完好</translation>
    </message>
    <message>
        <source>Place and details stay with your car</source>
        <translation>地点和详细信息仅保存在车辆中</translation>
    </message>
    <message>
        <source>Your car didn&apos;t write a details file for this event, so we don&apos;t know the exact reason or location — the video itself is intact.</source>
        <translation>您的车辆没有为此事件写入详细信息文件，因此我们不知道确切的原因或位置——但视频本身是完好的。</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>已被您的车辆加密</translation>
    </message>
    <message>
        <source>Encrypted</source>
        <extracomment>Short reason on a row&apos;s chip: the footage is encrypted</extracomment>
        <translation>已加密</translation>
    </message>
    <message>
        <source>Your car encrypted this recording, and its reason and place with it. Keelhold keeps it byte for byte; unlock it with your Tesla account to watch it here.</source>
        <translation>您的车辆加密了此录像，连同其原因和地点。Keelhold 会逐字节留存它；用您的特斯拉账户解锁后即可在这里观看。</translation>
    </message>
    <message>
        <source>Locked — unlock it with your Tesla account to watch it here.</source>
        <translation>已锁定——用您的特斯拉账户解锁后即可在这里观看。</translation>
    </message>
    <message>
        <source>Unlocked — its keys are kept on this computer, so it plays here even offline.</source>
        <translation>已解锁——其密钥保存在这台电脑上，因此即使离线也能在这里播放。</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <extracomment>Screen reader name of a row: reason, date and time, place</extracomment>
        <translation>%1，%2，%3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Screen reader name of a row: reason, date and time</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>New — you haven&apos;t watched this yet.</source>
        <translation>新——您还没有看过。</translation>
    </message>
    <message>
        <source>A verified copy is safe in your Vault.</source>
        <translation>一份已校验副本安全地存放在您的保险库中。</translation>
    </message>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n 个损坏的片段</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>此时刻有 %n 个视角未正常录制。这是特斯拉 U 盘的已知问题，并不是您的操作造成的。</numerusform>
        </translation>
    </message>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of a row&apos;s reason chip; %1 is the car&apos;s reason</extracomment>
        <translation>原因：%1</translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>留存 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>忽略 %n 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Deselect this event</source>
        <translation>取消选择此事件</translation>
    </message>
    <message>
        <source>Select this event</source>
        <translation>选择此事件</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>Status filter: events not watched yet</extracomment>
        <translation>新</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>Status filter: events already watched</extracomment>
        <translation>已查看</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>Status filter: events kept in the Vault</extracomment>
        <translation>在保险库中</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>Status filter: events hidden from the list</extracomment>
        <translation>已忽略</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Kind filter: Sentry Mode events</extracomment>
        <translation>哨兵</translation>
    </message>
    <message>
        <source>Saved</source>
        <extracomment>Kind filter: clips the driver saved</extracomment>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Recent Driving</source>
        <extracomment>Kind filter: the car&apos;s rolling recording of recent driving</extracomment>
        <translation>最近行驶</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>One place in the Activity line: camera name, then time into the event (&quot;Left Side 2:14&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Activity: %1</source>
        <translation>活动：%1</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the places in the Activity line</extracomment>
        <translation>、</translation>
    </message>
</context>
<context>
    <name>InboxViewModel</name>
    <message>
        <source>Drive</source>
        <extracomment>Title of the car drive&apos;s event list</extracomment>
        <translation>U 盘</translation>
    </message>
    <message>
        <source>Switch Drive</source>
        <translation>切换 U 盘</translation>
    </message>
    <message>
        <source>Pick a different Tesla drive or re-scan this one.</source>
        <translation>选择其他特斯拉 U 盘，或重新扫描此 U 盘。</translation>
    </message>
    <message>
        <source>Checking for new events…</source>
        <translation>正在检查新事件…</translation>
    </message>
    <message>
        <source>Filter</source>
        <extracomment>Button that opens the filter menu</extracomment>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Show only certain statuses, reasons, or kinds of events.</source>
        <translation>只显示特定状态、原因或类型的事件。</translation>
    </message>
    <message>
        <source>Status</source>
        <extracomment>Heading in the filter menu: filter by status (new, reviewed, …)</extracomment>
        <translation>状态</translation>
    </message>
    <message>
        <source>Reason</source>
        <extracomment>Heading in the filter menu: filter by the car&apos;s reason for recording</extracomment>
        <translation>原因</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Heading in the filter menu: filter by kind (Sentry, saved, recent driving)</extracomment>
        <translation>类型</translation>
    </message>
    <message>
        <source>Clear All Filters</source>
        <translation>清除所有筛选</translation>
    </message>
    <message>
        <source>Select</source>
        <extracomment>Button that starts ticking several events</extracomment>
        <translation>选择</translation>
    </message>
    <message>
        <source>Select multiple events to keep or dismiss them all at once.</source>
        <translation>选择多个事件，一次性全部留存或忽略。</translation>
    </message>
    <message>
        <source>Tick events to keep or dismiss them together.</source>
        <translation>勾选事件，将它们一起留存或忽略。</translation>
    </message>
    <message>
        <source>Archive the selected events to your Vault.</source>
        <translation>将所选事件留存到您的保险库。</translation>
    </message>
    <message>
        <source>Hide the selected events. This never deletes footage from your drive or Vault.</source>
        <translation>隐藏所选事件。这绝不会删除 U 盘或保险库中的录像。</translation>
    </message>
    <message>
        <source>Remove this filter.</source>
        <translation>移除此筛选条件。</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Button that keeps the event in the Vault</extracomment>
        <translation>留存</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Button that hides the event from the list</extracomment>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Just had an incident while driving?</source>
        <translation>刚在驾驶时出了事故？</translation>
    </message>
    <message>
        <source>It&apos;s likely in Recent Driving below. This folder overwrites itself as you keep driving, so keep a copy now if you need it.</source>
        <extracomment>&quot;Recent Driving&quot; is the list&apos;s own heading for the car&apos;s rolling recording</extracomment>
        <translation>它很可能在下方的“最近行驶”中。您继续驾驶时，此文件夹会不断覆盖自身，因此如有需要，请立即留存一份副本。</translation>
    </message>
    <message>
        <source>Keep Recent Driving Now</source>
        <translation>立即留存最近行驶</translation>
    </message>
    <message>
        <source>Copies all of Recent Driving to your Vault before it&apos;s overwritten. Your drive itself is never changed.</source>
        <translation>在被覆盖之前，将全部最近行驶记录复制到您的保险库。U 盘本身绝不会被更改。</translation>
    </message>
    <message>
        <source>Preview</source>
        <extracomment>Button that plays Recent Driving</extracomment>
        <translation>预览</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>所有状态</translation>
    </message>
    <message>
        <source>Any reason</source>
        <translation>任何原因</translation>
    </message>
    <message>
        <source>Everything</source>
        <extracomment>Kind filter: no filter, every kind of event</extracomment>
        <translation>全部</translation>
    </message>
</context>
<context>
    <name>IncidentReport</name>
    <message>
        <source>There is no folder at %1.</source>
        <translation>%1 处没有文件夹。</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>无法将报告写入那里。</translation>
    </message>
    <message>
        <source>There is no room for the report on this computer.</source>
        <translation>这台电脑上没有足够的空间保存报告。</translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message>
        <source>Keeping stopped</source>
        <translation>留存已停止</translation>
    </message>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 在全部留存之前已断开连接：已留存并校验 %n 个事件。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>已停止从 %1 留存：已留存并校验 %n 个事件。</numerusform>
        </translation>
    </message>
    <message>
        <source>Some footage couldn&apos;t be kept</source>
        <translation>部分录像未能留存</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>已从 %1 留存 %n 个新事件，但有些文件未能留存。%2</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new to keep</source>
        <translation>没有需要留存的新内容</translation>
    </message>
    <message>
        <source>Everything on %1 is already in your Vault.</source>
        <translation>%1 上的所有内容都已在您的保险库中。</translation>
    </message>
    <message>
        <source>Footage kept</source>
        <translation>录像已留存</translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>已从 %1 留存 %n 个新事件——%2，全部已校验</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeyService</name>
    <message>
        <source>Tesla couldn&apos;t confirm that your account owns the car that recorded this clip, so it can&apos;t be unlocked.</source>
        <translation>特斯拉无法确认您的账户拥有录制此片段的车辆，因此无法解锁。</translation>
    </message>
    <message>
        <source>Your Tesla sign-in has expired. Sign in again to unlock this footage.</source>
        <translation>您的特斯拉登录已过期。请重新登录以解锁此录像。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service couldn&apos;t be reached. Check your internet connection and try again.</source>
        <translation>无法连接特斯拉的服务。请检查您的网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service refused to unlock this clip. Try again later.</source>
        <translation>特斯拉的服务拒绝解锁此片段。请稍后重试。</translation>
    </message>
    <message>
        <source>Tesla&apos;s service gave an answer Keelhold couldn&apos;t read. Try again later.</source>
        <translation>特斯拉的服务返回了 Keelhold 无法读取的回复。请稍后重试。</translation>
    </message>
    <message>
        <source>This clip was copied while the car was still writing it, so it can&apos;t be unlocked.</source>
        <translation>此片段是在车辆仍在写入时复制的，因此无法解锁。</translation>
    </message>
    <message>
        <source>This clip&apos;s header is damaged, so it can&apos;t be unlocked.</source>
        <translation>此片段的文件头已损坏，因此无法解锁。</translation>
    </message>
    <message>
        <source>Sign in with your Tesla account to unlock this footage.</source>
        <translation>请用您的特斯拉账户登录以解锁此录像。</translation>
    </message>
    <message>
        <source>The key Tesla&apos;s service sent doesn&apos;t open this clip, so it can&apos;t be unlocked.</source>
        <translation>特斯拉的服务发送的密钥无法打开此片段，因此无法解锁。</translation>
    </message>
    <message>
        <source>This clip couldn&apos;t be read from the drive, so it can&apos;t be unlocked.</source>
        <translation>无法从 U 盘读取此片段，因此无法解锁。</translation>
    </message>
</context>
<context>
    <name>KeyboardHints</name>
    <message>
        <source>Space</source>
        <extracomment>The space bar, as a key&apos;s name</extracomment>
        <translation>Space</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Skip 5s</source>
        <translation>跳转 5 秒</translation>
    </message>
    <message>
        <source>Frame step</source>
        <translation>逐帧</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>所有摄像头</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Jump to the moment the event happened</extracomment>
        <translation>事发时刻</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>发生了什么</translation>
    </message>
    <message>
        <source>Fill window</source>
        <translation>铺满窗口</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>驾驶数据</translation>
    </message>
    <message>
        <source>Keep</source>
        <extracomment>Keep the event in the Vault</extracomment>
        <translation>留存</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <extracomment>Hide the event from the list</extracomment>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Hide these hints. The full shortcut list stays in Help.</source>
        <translation>隐藏这些提示。完整的快捷键列表仍在帮助中。</translation>
    </message>
</context>
<context>
    <name>ListPaneResizeHandle</name>
    <message>
        <source>Resize event list</source>
        <translation>调整事件列表宽度</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Copy Diagnostic Information</source>
        <translation>复制诊断信息</translation>
    </message>
</context>
<context>
    <name>MapViewModel</name>
    <message>
        <source>Kept in your Vault</source>
        <translation>已留存在您的保险库中</translation>
    </message>
    <message>
        <source>Driving yourself</source>
        <extracomment>The route key&apos;s colour for driving without Autopilot</extracomment>
        <translation>自行驾驶</translation>
    </message>
    <message>
        <source>Map tiles aren&apos;t available — check your internet connection.</source>
        <translation>地图图块不可用——请检查您的网络连接。</translation>
    </message>
</context>
<context>
    <name>MockEngine</name>
    <message>
        <source>Reading your drive…</source>
        <translation>正在读取您的 U 盘…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <translation>正在读取哨兵事件…</translation>
    </message>
    <message>
        <source>Reading saved clips…</source>
        <translation>正在读取保存的片段…</translation>
    </message>
    <message>
        <source>Reading recent driving…</source>
        <translation>正在读取最近行驶记录…</translation>
    </message>
    <message>
        <source>Almost done…</source>
        <translation>即将完成…</translation>
    </message>
</context>
<context>
    <name>Mp4Writer</name>
    <message>
        <source>There is already a file at “%1”.</source>
        <extracomment>%1 is the movie&apos;s full path</extracomment>
        <translation>“%1”处已有文件。</translation>
    </message>
    <message>
        <source>The movie file “%1” couldn&apos;t be created: %2.</source>
        <extracomment>%1 is the movie&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>无法创建视频文件“%1”：%2。</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be started: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法开始写入视频：%1。</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be written: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法写入视频：%1。</translation>
    </message>
    <message>
        <source>The movie couldn&apos;t be finished: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法完成视频：%1。</translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message>
        <source>Loads a few short made-up clips so you can look around before connecting your own Tesla.</source>
        <translation>载入几段简短的虚构片段，让您在连接自己的特斯拉之前先四处看看。</translation>
    </message>
    <message>
        <source>Welcome to Keelhold</source>
        <translation>欢迎使用 Keelhold</translation>
    </message>
    <message>
        <source>Your Tesla is always recording — Sentry Mode, saved clips, and your recent drives. This app reads the USB drive from your car&apos;s glovebox, shows you what it found in plain English, and keeps a permanent, verified copy on your %1 so you never lose footage that matters.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>您的特斯拉一直在录制——哨兵模式、保存的片段，以及您最近的行驶。此应用读取您车辆手套箱中的 U 盘，用通俗易懂的语言告诉您它找到了什么，并在您的%1上留存一份永久的、经过校验的副本，让重要的录像永不丢失。</translation>
    </message>
    <message>
        <source>Get Started</source>
        <extracomment>Button on the first screen of the setup</extracomment>
        <translation>开始使用</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>只是随便看看？试试示例录像</translation>
    </message>
    <message>
        <source>Show Me Your Tesla Drive</source>
        <translation>指定您的特斯拉 U 盘</translation>
    </message>
    <message>
        <source>Plug in the USB drive from your car&apos;s glovebox, then pick it below. We only look at the parts of the drive you choose to show us.</source>
        <translation>插入您车辆手套箱中的 U 盘，然后在下方选择它。我们只会查看您选择让我们查看的那部分内容。</translation>
    </message>
    <message>
        <source>Connected drives appear here the moment %1 mounts them. Pick yours and confirm with one click — we&apos;ll check for Tesla footage right after.</source>
        <extracomment>%1 is the operating system as a sentence&apos;s subject, e.g. &quot;your system&quot;</extracomment>
        <translation>%1挂载 U 盘后，它会立即显示在这里。选择您的 U 盘，点击一下确认即可——我们随后会检查其中的特斯拉录像。</translation>
    </message>
    <message>
        <source>No drive detected yet. Insert your Tesla&apos;s USB drive, or choose it manually below.</source>
        <translation>尚未检测到 U 盘。请插入您特斯拉的 U 盘，或在下方手动选择。</translation>
    </message>
    <message>
        <source>Choose a Drive or Folder Manually…</source>
        <translation>手动选择 U 盘或文件夹…</translation>
    </message>
    <message>
        <source>Opens a file picker starting at %1, where connected USB drives appear.</source>
        <extracomment>%1 is a folder path, e.g. /media/alex</extracomment>
        <translation>打开文件选择器，起始位置为 %1，已连接的 U 盘会显示在那里。</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button: back to the previous step of the setup</extracomment>
        <translation>返回</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Select Your Tesla&apos;s USB Drive</source>
        <extracomment>Title of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>选择您特斯拉的 U 盘</translation>
    </message>
    <message>
        <source>Choose the drive itself, or its TeslaCam folder. Look for a plain external drive icon — Tesla drives usually show up as &quot;UNTITLED&quot; or similar.</source>
        <translation>请选择 U 盘本身，或其中的 TeslaCam 文件夹。找一个普通的外置磁盘图标——特斯拉 U 盘通常显示为“UNTITLED”或类似名称。</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <extracomment>Accept button of the folder dialog that picks the car&apos;s drive</extracomment>
        <translation>使用此 U 盘</translation>
    </message>
    <message>
        <source>Reading your drive…</source>
        <translation>正在读取您的 U 盘…</translation>
    </message>
    <message>
        <source>This usually takes a few seconds.</source>
        <translation>这通常需要几秒钟。</translation>
    </message>
    <message>
        <source>Browse While It Finishes</source>
        <translation>边读取边浏览</translation>
    </message>
    <message>
        <source>Start Browsing</source>
        <translation>开始浏览</translation>
    </message>
    <message>
        <source>Recording without encryption</source>
        <translation>不加密录制</translation>
    </message>
    <message>
        <source>Newer Tesla software can encrypt new recordings so only your Tesla account can view them. If you&apos;d like footage to play here (and in any app), switch it off in your car — it takes about 30 seconds, and everything already recorded stays exactly as it is.</source>
        <translation>较新的特斯拉软件可以加密新录像，使只有您的特斯拉账户才能查看。如果您希望录像能在这里（以及任何应用中）播放，请在车上关闭此功能——大约只需 30 秒，已录制的内容会保持原样。</translation>
    </message>
    <message>
        <source>Open %1</source>
        <extracomment>Button; %1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>Tesla&apos;s own viewer for encrypted clips — decryption happens in your browser; footage never leaves your device.</source>
        <translation>特斯拉自己的加密片段查看器——解密在您的浏览器中进行；录像绝不会离开您的设备。</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the encryption guide</extracomment>
        <translation>完成</translation>
    </message>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>目前已找到 %n 个事件，共 %1 个片段。</numerusform>
        </translation>
    </message>
    <message>
        <source>Is this your Tesla drive? — %1</source>
        <extracomment>%1 is the drive&apos;s name, e.g. UNTITLED</extracomment>
        <translation>这是您的特斯拉 U 盘吗？— %1</translation>
    </message>
    <message>
        <source>In your car, tap Controls</source>
        <translation>在车上点击“控制”</translation>
    </message>
    <message>
        <source>The car icon at the bottom-left of the touchscreen.</source>
        <translation>触摸屏左下角的汽车图标。</translation>
    </message>
    <message>
        <source>Tap Safety</source>
        <extracomment>The car&apos;s menu entry, as named on its touchscreen</extracomment>
        <translation>点击“安全”</translation>
    </message>
    <message>
        <source>In the menu on the left.</source>
        <translation>在左侧菜单中。</translation>
    </message>
    <message>
        <source>Switch off “Encrypt Dashcam Recordings”</source>
        <extracomment>The quoted words are the car&apos;s setting, as named on its touchscreen</extracomment>
        <translation>关闭“加密行车记录仪录像”</translation>
    </message>
    <message>
        <source>If you don&apos;t see it, your car&apos;s software doesn&apos;t encrypt yet — nothing to do.</source>
        <translation>如果您没有看到此选项，说明您车辆的软件尚不加密——无需任何操作。</translation>
    </message>
    <message>
        <source>Done</source>
        <comment>last step</comment>
        <extracomment>The last step of the guide: finished</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>New footage records unencrypted and plays right here.</source>
        <translation>新录像将不加密录制，并可直接在这里播放。</translation>
    </message>
    <message>
        <source>Clips recorded while encryption was on stay encrypted — sign in at %1 to watch them anytime. Keelhold still backs them up byte-for-byte, so nothing is ever lost.</source>
        <extracomment>%1 is the web viewer&apos;s host name, dashcam.tesla.com</extracomment>
        <translation>开启加密期间录制的片段仍保持加密——随时可在 %1 登录观看。Keelhold 仍会逐字节备份它们，因此不会丢失任何内容。</translation>
    </message>
    <message>
        <source>Prefer to keep encryption on? That&apos;s a fair choice — it protects footage if the drive itself is stolen. This app will still keep verified copies of everything.</source>
        <translation>想保持加密开启？这也是合理的选择——如果 U 盘本身被盗，加密可以保护录像。此应用仍会为所有内容留存经过校验的副本。</translation>
    </message>
</context>
<context>
    <name>OverlayText</name>
    <message>
        <source>%1: %2</source>
        <extracomment>Drawn over an exported movie: %1 is the kind of event (Sentry, Saved), %2 why the car kept it</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 — no footage</source>
        <extracomment>Drawn in a camera&apos;s cell of an exported movie: %1 is the camera&apos;s name</extracomment>
        <translation>%1 — 无录像</translation>
    </message>
</context>
<context>
    <name>PlainReason</name>
    <message>
        <source>Something came close</source>
        <translation>有物体靠近</translation>
    </message>
    <message>
        <source>Came close</source>
        <extracomment>Short label of a Sentry event where something came close to the car</extracomment>
        <translation>有物靠近</translation>
    </message>
    <message>
        <source>Sentry Mode noticed a person or object near your parked car.</source>
        <translation>哨兵模式发现有人或物体靠近您停放的车辆。</translation>
    </message>
    <message>
        <source>Bump or impact detected</source>
        <translation>检测到碰撞或撞击</translation>
    </message>
    <message>
        <source>Impact</source>
        <extracomment>Short label of an event where the car felt a bump</extracomment>
        <translation>撞击</translation>
    </message>
    <message>
        <source>The car felt a physical bump or impact while parked.</source>
        <translation>车辆停放时感应到了碰撞或撞击。</translation>
    </message>
    <message>
        <source>You honked</source>
        <translation>您按了喇叭</translation>
    </message>
    <message>
        <source>Honk save</source>
        <extracomment>Short label of footage the car saved because the driver honked</extracomment>
        <translation>鸣笛保存</translation>
    </message>
    <message>
        <source>Honking saves the last few minutes of footage — a quick way to keep a moment.</source>
        <translation>按喇叭会保存最近几分钟的录像——这是留住某个时刻的快捷方法。</translation>
    </message>
    <message>
        <source>You saved this</source>
        <translation>您保存了此录像</translation>
    </message>
    <message>
        <source>You saved</source>
        <extracomment>Short label of footage the driver saved with the dashcam button</extracomment>
        <translation>手动保存</translation>
    </message>
    <message>
        <source>You tapped the dashcam save button, so the car kept this footage.</source>
        <translation>您点击了行车记录仪的保存按钮，因此车辆保存了这段录像。</translation>
    </message>
    <message>
        <source>Panic alarm</source>
        <translation>紧急警报</translation>
    </message>
    <message>
        <source>Alarm</source>
        <extracomment>Short label of an event where the car&apos;s alarm went off</extracomment>
        <translation>警报</translation>
    </message>
    <message>
        <source>The car&apos;s alarm was triggered.</source>
        <translation>车辆警报被触发。</translation>
    </message>
    <message>
        <source>Recent driving</source>
        <translation>最近行驶</translation>
    </message>
    <message>
        <source>Driving</source>
        <extracomment>Short label of the car&apos;s rolling recording while driving</extracomment>
        <translation>行驶</translation>
    </message>
    <message>
        <source>The rolling last hour of driving. The car reuses this space continuously.</source>
        <translation>最近一小时的滚动行驶记录。车辆会持续重复利用这部分空间。</translation>
    </message>
    <message>
        <source>Sentry event</source>
        <translation>哨兵事件</translation>
    </message>
    <message>
        <source>Sentry</source>
        <extracomment>Short label of a Sentry event of a kind the app does not know</extracomment>
        <translation>哨兵</translation>
    </message>
    <message>
        <source>Your car flagged this moment. Newer software sometimes adds new event types.</source>
        <translation>您的车辆标记了这一时刻。较新的软件有时会增加新的事件类型。</translation>
    </message>
</context>
<context>
    <name>PlatformWords</name>
    <message>
        <source>a disk utility such as Disks</source>
        <extracomment>Completes &quot;reformatting (in %1, after backing up)&quot;; Disks is the GNOME disk tool</extracomment>
        <translation>“磁盘”等磁盘工具</translation>
    </message>
    <message>
        <source>computer</source>
        <extracomment>The user&apos;s machine, as in &quot;on this %1&quot; or &quot;on your %1&quot;</extracomment>
        <translation>电脑</translation>
    </message>
    <message>
        <source>your system</source>
        <extracomment>The operating system as the subject of a sentence, lower case</extracomment>
        <translation>您的系统</translation>
    </message>
</context>
<context>
    <name>PlayerDrivingData</name>
    <message>
        <source>No driving data in this event</source>
        <translation>此事件没有驾驶数据</translation>
    </message>
    <message>
        <source>%1 %</source>
        <extracomment>How far the accelerator is pressed, as a percentage: &quot;42 %&quot;</extracomment>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Button that shows or hides the driving data over the video</extracomment>
        <translation>驾驶数据</translation>
    </message>
    <message>
        <source>Show or hide the car&apos;s speed, pedals, steering and Autopilot state over the video. (T)</source>
        <translation>在视频上显示或隐藏车辆的车速、踏板、转向和自动辅助驾驶状态。（T）</translation>
    </message>
    <message>
        <source>This event&apos;s footage carries no driving data from the car.</source>
        <translation>此事件的录像不含车辆的驾驶数据。</translation>
    </message>
    <message>
        <source>Click to switch between km/h and mph.</source>
        <translation>点击可在 km/h 和 mph 之间切换。</translation>
    </message>
    <message>
        <source>BRAKE</source>
        <extracomment>Lamp over the video that is lit while the brake pedal is pressed; keep it short</extracomment>
        <translation>刹车</translation>
    </message>
    <message>
        <source>Lit while the brake pedal is pressed.</source>
        <translation>踩下刹车踏板时亮起。</translation>
    </message>
    <message>
        <source>How far the accelerator pedal is pressed.</source>
        <translation>加速踏板踩下的程度。</translation>
    </message>
    <message>
        <source>Steering wheel angle.</source>
        <translation>方向盘转角。</translation>
    </message>
    <message>
        <source>Direction of travel.</source>
        <translation>行驶方向。</translation>
    </message>
    <message>
        <source>The car&apos;s speed over the event; red marks hard braking. Click to jump there.</source>
        <translation>事件期间的车速；红色标记急刹车。点击可跳转到该处。</translation>
    </message>
</context>
<context>
    <name>PlayerLayout</name>
    <message>
        <source>%1 — playing at %2, this computer can&apos;t keep up</source>
        <extracomment>%1 is the chosen playback speed, %2 the speed it really plays at (e.g. 1.6×)</extracomment>
        <translation>%1——正以 %2 播放，这台电脑跟不上</translation>
    </message>
    <message>
        <source>The moment it happened — %1 into the event.</source>
        <extracomment>%1 is a time into the event, e.g. 0:42</extracomment>
        <translation>事发时刻——事件开始后 %1。</translation>
    </message>
    <message>
        <source>%1 — currently enlarged.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>%1——当前已放大。</translation>
    </message>
    <message>
        <source>Switch to the %1 camera. (Keys 1–7 jump between cameras; 0 shows all.)</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>切换到%1摄像头。（按 1–7 键在摄像头之间跳转；按 0 显示全部。）</translation>
    </message>
    <message>
        <source>Click to enlarge the %1 camera. Click again to show all cameras.</source>
        <extracomment>%1 is a camera&apos;s name, e.g. Left Side</extracomment>
        <translation>点击放大%1摄像头。再次点击显示所有摄像头。</translation>
    </message>
    <message>
        <source>Location unknown</source>
        <translation>位置未知</translation>
    </message>
    <message>
        <source>Select an event</source>
        <translation>选择一个事件</translation>
    </message>
    <message>
        <source>Choose an archived event on the left to watch it — everything here works exactly like the Drive tab, even with no Tesla drive connected.</source>
        <extracomment>&quot;Drive&quot; is the app&apos;s own tab; translate it as there</extracomment>
        <translation>在左侧选择一个已留存的事件即可观看——这里的一切与“U 盘”标签页完全相同，即使未连接特斯拉 U 盘也可以使用。</translation>
    </message>
    <message>
        <source>Choose something from the list on the left to watch every available camera angle, synced on one timeline.</source>
        <translation>从左侧列表中选择一项，即可在同一条时间轴上同步观看所有可用的摄像头视角。</translation>
    </message>
    <message>
        <source>Just exploring? Try sample footage</source>
        <translation>只是随便看看？试试示例录像</translation>
    </message>
</context>
<context>
    <name>PlayerMetadataBar</name>
    <message>
        <source>Reason: %1</source>
        <extracomment>Screen reader name of the reason chip; %1 is the car&apos;s reason, e.g. Sentry Mode detection</extracomment>
        <translation>原因：%1</translation>
    </message>
</context>
<context>
    <name>PlayerMoments</name>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 is a hard moment (&quot;Hard braking&quot;), %2 a time into the event</extracomment>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>What happened</source>
        <extracomment>Button that jumps to the next thing that happened in the event</extracomment>
        <translation>发生了什么</translation>
    </message>
    <message>
        <source>Jump to the next thing that happened: someone moving in front of a camera, or a hard moment of the drive (N)</source>
        <translation>跳到下一个发生的情况：有人在摄像头前移动，或行驶中的剧烈时刻（N）</translation>
    </message>
    <message>
        <source>Back to the thing that happened before (Shift+N)</source>
        <translation>回到上一个发生的情况（Shift+N）</translation>
    </message>
</context>
<context>
    <name>ReportChart</name>
    <message>
        <source>Speed (%1)</source>
        <extracomment>Title of the chart&apos;s speed panel; %1 is the unit, km/h or mph</extracomment>
        <translation>车速（%1）</translation>
    </message>
    <message>
        <source>Accelerator (%)</source>
        <extracomment>Title of the chart&apos;s accelerator pedal panel, in percent pressed</extracomment>
        <translation>加速踏板（%）</translation>
    </message>
    <message>
        <source>Steering (°)</source>
        <extracomment>Title of the chart&apos;s steering wheel panel, in degrees</extracomment>
        <translation>方向盘（°）</translation>
    </message>
    <message>
        <source>Acceleration (m/s²)</source>
        <extracomment>Title of the chart&apos;s acceleration panel</extracomment>
        <translation>加速度（m/s²）</translation>
    </message>
    <message>
        <source>moment</source>
        <extracomment>On the chart&apos;s time axis, under the moment the car triggered the recording</extracomment>
        <translation>事发</translation>
    </message>
    <message>
        <source>start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>On the chart&apos;s time axis: %1 is seconds from the moment, signed (+5, -5)</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Brake pressed</source>
        <extracomment>In the chart&apos;s legend, beside the colour of the brake band</extracomment>
        <translation>踩下刹车</translation>
    </message>
    <message>
        <source>Acceleration x</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s x axis</extracomment>
        <translation>加速度 x</translation>
    </message>
    <message>
        <source>Acceleration y</source>
        <extracomment>In the chart&apos;s legend: acceleration along the car&apos;s y axis</extracomment>
        <translation>加速度 y</translation>
    </message>
</context>
<context>
    <name>ReportContent</name>
    <message>
        <source>The drive didn&apos;t answer while this file was read.</source>
        <translation>读取此文件时 U 盘没有响应。</translation>
    </message>
    <message>
        <source>Locked — unlock to include this camera</source>
        <extracomment>Stands in for a camera&apos;s picture when its footage is encrypted and no key is held</extracomment>
        <translation>已锁定——解锁后即可包含此摄像头</translation>
    </message>
    <message>
        <source>This camera&apos;s picture at the moment couldn&apos;t be read.</source>
        <translation>无法读取此摄像头在事发时刻的画面。</translation>
    </message>
    <message>
        <source>Plays</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: nothing wrong with it</extracomment>
        <translation>可播放</translation>
    </message>
    <message>
        <source>Empty — the car wrote nothing into it</source>
        <translation>空——车辆没有写入任何内容</translation>
    </message>
    <message>
        <source>Cut off — the car didn&apos;t finish writing it</source>
        <translation>被截断——车辆没有写完</translation>
    </message>
    <message>
        <source>Damaged — it can&apos;t be played</source>
        <translation>已损坏——无法播放</translation>
    </message>
    <message>
        <source>The drive didn&apos;t answer when it was read</source>
        <translation>读取时 U 盘没有响应</translation>
    </message>
    <message>
        <source>Encrypted by your car</source>
        <translation>已被您的车辆加密</translation>
    </message>
    <message>
        <source>Not checked</source>
        <extracomment>A clip&apos;s condition in the report&apos;s list of files: it was not looked at</extracomment>
        <translation>未检查</translation>
    </message>
    <message>
        <source>This file couldn&apos;t be read.</source>
        <translation>无法读取此文件。</translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message>
        <source>Encrypted by your car</source>
        <translation>已被您的车辆加密</translation>
    </message>
    <message>
        <source>Incident report: %1</source>
        <extracomment>The report&apos;s title; %1 is why the car recorded, such as &quot;Sentry event&quot;</extracomment>
        <translation>事故报告：%1</translation>
    </message>
    <message>
        <source>Incident report: %1 — %2</source>
        <extracomment>The report&apos;s title; %1 is the kind of recording, such as &quot;Saved&quot;, %2 why the car recorded</extracomment>
        <translation>事故报告：%1——%2</translation>
    </message>
    <message>
        <source>The moment</source>
        <extracomment>Label beside the date and time the car triggered the recording</extracomment>
        <translation>事发时刻</translation>
    </message>
    <message>
        <source>Recording starts</source>
        <translation>录制开始</translation>
    </message>
    <message>
        <source>(the car&apos;s clock)</source>
        <extracomment>After the date and time of the moment: which clock says so</extracomment>
        <translation>（车辆时钟）</translation>
    </message>
    <message>
        <source>By the GPS clock</source>
        <extracomment>Label beside the same moment by the GPS clock, in UTC</extracomment>
        <translation>按 GPS 时钟</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>发生了什么</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>Label beside the street and city where it happened</extracomment>
        <translation>地点</translation>
    </message>
    <message>
        <source>The car didn&apos;t name the place.</source>
        <translation>车辆未记录地点名称。</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Recorded by</source>
        <extracomment>Label beside how many cameras recorded the event</extracomment>
        <translation>录制来源</translation>
    </message>
    <message>
        <source>The car&apos;s clock and the GPS clock differ by more than a time zone can explain: the car&apos;s clock was probably set wrong. The GPS time is the more reliable one.</source>
        <translation>车辆时钟与 GPS 时钟的差异超出了时区所能解释的范围：车辆时钟可能设置有误。GPS 时间更为可靠。</translation>
    </message>
    <message>
        <source>The car encrypted this footage. The files are listed exactly as the car wrote them.</source>
        <translation>车辆加密了此录像。文件按车辆写入时的原样列出。</translation>
    </message>
    <message>
        <source>Where, and the route driven</source>
        <extracomment>Heading over the map of the spot and the route</extracomment>
        <translation>地点及行驶路线</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>The car didn&apos;t record where this happened, so there is no map.</source>
        <translation>车辆未记录事发地点，因此没有地图。</translation>
    </message>
    <message>
        <source>Each camera at the moment</source>
        <translation>事发时刻各摄像头的画面</translation>
    </message>
    <message>
        <source>Every picture is the camera&apos;s own frame at the moment, at its full size.</source>
        <translation>每张图片都是该摄像头在事发时刻的原始帧，以完整尺寸显示。</translation>
    </message>
    <message>
        <source>Driving data</source>
        <extracomment>Heading over the chart of speed, pedals and steering</extracomment>
        <translation>驾驶数据</translation>
    </message>
    <message>
        <source>From 10 seconds before to 10 seconds after the moment, as the car recorded it with each frame.</source>
        <translation>从事发前 10 秒到事发后 10 秒，按车辆随每帧记录的数据。</translation>
    </message>
    <message>
        <source>The first 20 seconds of the recording, as the car recorded it with each frame.</source>
        <translation>录像的前 20 秒，按车辆随每帧记录的数据。</translation>
    </message>
    <message>
        <source>These clips carry no driving data: the car records it only with newer software.</source>
        <translation>这些片段不含驾驶数据：车辆只有在较新的软件下才会记录。</translation>
    </message>
    <message>
        <source>At the moment</source>
        <extracomment>Heading over the car&apos;s readings at the moment</extracomment>
        <translation>事发时刻</translation>
    </message>
    <message>
        <source>At the start</source>
        <translation>录制开始时</translation>
    </message>
    <message>
        <source>Speed</source>
        <extracomment>Label beside the car&apos;s speed</extracomment>
        <translation>车速</translation>
    </message>
    <message>
        <source>Gear</source>
        <extracomment>Label beside the gear (P, R, N, D)</extracomment>
        <translation>挡位</translation>
    </message>
    <message>
        <source>Brake</source>
        <extracomment>Label beside whether the brake pedal was pressed</extracomment>
        <translation>刹车</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>已踩下</translation>
    </message>
    <message>
        <source>Not pressed</source>
        <translation>未踩下</translation>
    </message>
    <message>
        <source>Accelerator</source>
        <extracomment>Label beside how far the accelerator pedal was pressed</extracomment>
        <translation>加速踏板</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>How far the accelerator pedal was pressed; %1 is a whole percentage, the % sign follows it</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Steering</source>
        <extracomment>Label beside the steering wheel&apos;s angle</extracomment>
        <translation>方向盘</translation>
    </message>
    <message>
        <source>Driver assistance</source>
        <extracomment>Label beside Autopilot&apos;s state (Autosteer, Traffic-Aware Cruise Control…)</extracomment>
        <translation>驾驶辅助</translation>
    </message>
    <message>
        <source>Turn signal</source>
        <extracomment>Label beside the turn signal&apos;s state</extracomment>
        <translation>转向灯</translation>
    </message>
    <message>
        <source>Hazard lights</source>
        <translation>危险警示灯</translation>
    </message>
    <message>
        <source>Heading</source>
        <extracomment>Label beside the direction the car was heading (a compass bearing)</extracomment>
        <translation>航向</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>Label beside the car&apos;s GPS coordinates</extracomment>
        <translation>位置</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <extracomment>Label beside the car&apos;s acceleration</extracomment>
        <translation>加速度</translation>
    </message>
    <message>
        <source>x %1, y %2, z %3 m/s²</source>
        <extracomment>Acceleration along the car&apos;s three axes, in metres per second squared</extracomment>
        <translation>x %1，y %2，z %3 m/s²</translation>
    </message>
    <message>
        <source>Hard moments of the drive</source>
        <extracomment>Heading over the list of hard braking, swerves and the like</extracomment>
        <translation>行驶中的剧烈时刻</translation>
    </message>
    <message>
        <source>The driving data shows no hard braking, swerve, sudden stop or Autopilot switching off in this event.</source>
        <translation>驾驶数据显示，此事件中没有急刹车、急转向、急停或自动辅助驾驶关闭。</translation>
    </message>
    <message>
        <source>%1 (%2 in)</source>
        <extracomment>When a hard moment happened: %1 the car&apos;s clock, %2 how far into the event (m:ss)</extracomment>
        <translation>%1（事件开始后 %2）</translation>
    </message>
    <message>
        <source>Found from the car&apos;s own records: hard braking is the speed falling at 0.4 g or more; a swerve is the wheel turned at 200°/s or more, or a sideways pull of 0.5 g.</source>
        <translation>根据车辆自身的记录判断：急刹车指车速以 0.4 g 或以上的减速度下降；急转向指方向盘以 200°/s 或以上的速度转动，或横向加速度达到 0.5 g。</translation>
    </message>
    <message>
        <source>The original files</source>
        <extracomment>Heading over the list of every file the car recorded for the event</extracomment>
        <translation>原始文件</translation>
    </message>
    <message>
        <source>Every file the car recorded for this event. Each SHA-256 was computed from the file itself as this report was made.</source>
        <translation>车辆为此事件录制的每个文件。每个 SHA-256 都是在生成本报告时根据文件本身计算得出的。</translation>
    </message>
    <message>
        <source>On the car&apos;s drive, in %1</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>在车辆的 U 盘上，位于 %1</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Last verified %2.</source>
        <extracomment>%1 is a folder, %2 a date and time</extracomment>
        <translation>在保险库中，位于 %1。上次校验于 %2。</translation>
    </message>
    <message>
        <source>In the Vault, in %1. Not verified again since it was kept.</source>
        <extracomment>%1 is a folder</extracomment>
        <translation>在保险库中，位于 %1。留存后未再次校验。</translation>
    </message>
    <message>
        <source>Every file matches the Vault&apos;s record of it, made when it was kept.</source>
        <translation>每个文件都与保险库在留存时为其所做的记录一致。</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Column heading: the file&apos;s name</extracomment>
        <translation>文件</translation>
    </message>
    <message>
        <source>Camera</source>
        <extracomment>Column heading: which camera recorded the file</extracomment>
        <translation>摄像头</translation>
    </message>
    <message>
        <source>Starts</source>
        <extracomment>Column heading: the time the file&apos;s footage starts</extracomment>
        <translation>开始</translation>
    </message>
    <message>
        <source>Length</source>
        <extracomment>Column heading: how long the file&apos;s footage runs (m:ss)</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading: the file&apos;s size</extracomment>
        <translation>大小</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>Column heading: whether the file plays, or how it is damaged</extracomment>
        <translation>状况</translation>
    </message>
    <message>
        <source>This differs from the Vault&apos;s record: the file is not the one that was kept.</source>
        <translation>此文件与保险库的记录不符：它不是当初留存的那个文件。</translation>
    </message>
    <message>
        <source>No files were found for this event.</source>
        <translation>未找到此事件的文件。</translation>
    </message>
    <message>
        <source>How to check the files</source>
        <translation>如何核对文件</translation>
    </message>
    <message>
        <source>Anyone can check that a file is exactly the one listed here by computing its SHA-256 again and comparing it with the one above. With the evidence package unpacked, run this in its folder; every line must end in OK:</source>
        <extracomment>Followed by the command to run; OK is what the command prints, so it stays as it is</extracomment>
        <translation>任何人都可以重新计算文件的 SHA-256 并与上面列出的值比较，以核对该文件是否正是此处列出的那个文件。将证据包解压后，在其文件夹中运行以下命令；每一行都必须以 OK 结尾：</translation>
    </message>
    <message>
        <source>Made by Keelhold %1 on %2 (this computer&apos;s clock). Keelhold only reads the car&apos;s drive: nothing on it was changed.</source>
        <extracomment>At the report&apos;s end: %1 is Keelhold&apos;s version, %2 the date and time the report was made</extracomment>
        <translation>由 Keelhold %1 于 %2（这台电脑的时钟）生成。Keelhold 只读取车辆的 U 盘：其中的任何内容都未被更改。</translation>
    </message>
    <message>
        <source>The report couldn&apos;t be written there.</source>
        <translation>无法将报告写入那里。</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <extracomment>At the foot of every page of the report</extracomment>
        <translation>第 %1 页，共 %2 页</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>speed and its unit</comment>
        <extracomment>A speed: %1 the number, %2 its unit (km/h or mph)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n cameras</source>
        <translation>
            <numerusform>%n 个摄像头</numerusform>
        </translation>
    </message>
    <message>
        <source>Off</source>
        <comment>driver assistance</comment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>turn signal</comment>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>turn signal</comment>
        <translation>右</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>turn signal</comment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>— %1, slowing at %2 g</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 the deceleration in g (9.81 m/s²)</extracomment>
        <translation>——%1，减速度 %2 g</translation>
    </message>
    <message>
        <source>— %1, steering turned at %2°/s</source>
        <extracomment>After a hard moment&apos;s name: %1 the speed with its unit, %2 how fast the wheel turned, in degrees a second</extracomment>
        <translation>——%1，方向盘转速 %2°/s</translation>
    </message>
    <message>
        <source>On a Mac: %1. On Windows: %2, one file at a time.</source>
        <extracomment>%1 and %2 are commands, which stay as they are</extracomment>
        <translation>在 Mac 上：%1。在 Windows 上：%2，每次一个文件。</translation>
    </message>
</context>
<context>
    <name>ReportMap</name>
    <message>
        <source>%1 km</source>
        <extracomment>The map&apos;s scale bar: %1 kilometres</extracomment>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 m</source>
        <extracomment>The map&apos;s scale bar: %1 metres</extracomment>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>N ↑</source>
        <extracomment>The map&apos;s north arrow: N for north</extracomment>
        <translation>北 ↑</translation>
    </message>
    <message>
        <source>Map data © OpenStreetMap contributors</source>
        <extracomment>The map tiles&apos; required credit; OpenStreetMap is a name</extracomment>
        <translation>地图数据 © OpenStreetMap 贡献者</translation>
    </message>
</context>
<context>
    <name>SignInLink</name>
    <message>
        <source>Tesla didn&apos;t accept this sign-in: it may have expired or been used already. Sign in again.</source>
        <translation>特斯拉未接受此登录：它可能已过期或已被使用。请重新登录。</translation>
    </message>
    <message>
        <source>That isn&apos;t the address the browser landed on after signing in: it starts with %1.</source>
        <extracomment>%1 is the web address the browser should have landed on</extracomment>
        <translation>这不是浏览器登录后跳转到的地址：该地址应以 %1 开头。</translation>
    </message>
    <message>
        <source>Tesla didn&apos;t complete the sign-in. Try again.</source>
        <translation>特斯拉未完成登录。请重试。</translation>
    </message>
    <message>
        <source>That address belongs to another sign-in. Use the sign-in link Keelhold opened last.</source>
        <translation>该地址属于另一次登录。请使用 Keelhold 最后打开的登录链接。</translation>
    </message>
    <message>
        <source>That address holds no sign-in code. Copy the whole address from the browser.</source>
        <translation>该地址不含登录代码。请从浏览器复制完整地址。</translation>
    </message>
</context>
<context>
    <name>SyncPlayerController</name>
    <message>
        <source>Reading this camera from the drive…</source>
        <translation>正在从 U 盘读取此摄像头…</translation>
    </message>
    <message>
        <source>Finding the exact frame…</source>
        <extracomment>Shown on the timeline while a seek shows a nearby frame first</extracomment>
        <translation>正在查找精确的帧…</translation>
    </message>
</context>
<context>
    <name>TelemetryRecord</name>
    <message>
        <source>Self-Driving</source>
        <extracomment>Tesla&apos;s name of a driver assistance (Full Self-Driving)</extracomment>
        <translation>完全自动驾驶能力（FSD）</translation>
    </message>
    <message>
        <source>Autosteer</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>自动辅助转向</translation>
    </message>
    <message>
        <source>Traffic-Aware Cruise Control</source>
        <extracomment>Tesla&apos;s name of a driver assistance</extracomment>
        <translation>主动巡航控制</translation>
    </message>
</context>
<context>
    <name>TeslaCamParser</name>
    <message>
        <source>The TeslaCam folder could not be found.</source>
        <translation>找不到 TeslaCam 文件夹。</translation>
    </message>
    <message>
        <source>The selected item is not a folder.</source>
        <translation>所选项目不是文件夹。</translation>
    </message>
    <message>
        <source>The TeslaCam folder could not be read.</source>
        <translation>无法读取 TeslaCam 文件夹。</translation>
    </message>
    <message>
        <source>Keelhold isn&apos;t allowed to read the folder “%1”. Check the folder&apos;s permissions and try again.</source>
        <extracomment>%1 is the folder&apos;s full path</extracomment>
        <translation>Keelhold 无权读取文件夹“%1”。请检查该文件夹的权限，然后重试。</translation>
    </message>
    <message>
        <source>Reading your Tesla drive…</source>
        <translation>正在读取您的特斯拉 U 盘…</translation>
    </message>
    <message>
        <source>Reading Sentry events…</source>
        <extracomment>Scan progress: reading the SentryClips folder</extracomment>
        <translation>正在读取哨兵事件…</translation>
    </message>
    <message>
        <source>Reading Saved clips…</source>
        <extracomment>Scan progress: reading the SavedClips folder</extracomment>
        <translation>正在读取保存的片段…</translation>
    </message>
    <message>
        <source>Reading Recent driving…</source>
        <extracomment>Scan progress: reading the RecentClips folder</extracomment>
        <translation>正在读取最近行驶记录…</translation>
    </message>
    <message>
        <source>Scan complete.</source>
        <translation>扫描完成。</translation>
    </message>
</context>
<context>
    <name>TokenHolder</name>
    <message>
        <source>This computer has no secret store to remember your sign-in in, so it is kept only until Keelhold quits.</source>
        <translation>这台电脑没有可用于记住您登录信息的密钥存储，因此它只保留到 Keelhold 退出为止。</translation>
    </message>
</context>
<context>
    <name>TriageState</name>
    <message>
        <source>New</source>
        <extracomment>State of an event the user has not looked at yet</extracomment>
        <translation>新</translation>
    </message>
    <message>
        <source>Reviewed</source>
        <extracomment>State of an event the user has watched</extracomment>
        <translation>已查看</translation>
    </message>
    <message>
        <source>In Vault</source>
        <extracomment>State of an event that is kept in the Vault</extracomment>
        <translation>在保险库中</translation>
    </message>
    <message>
        <source>Dismissed</source>
        <extracomment>State of an event the user chose not to keep</extracomment>
        <translation>已忽略</translation>
    </message>
</context>
<context>
    <name>UiBridge</name>
    <message>
        <source>Drive</source>
        <extracomment>Sidebar section: the car&apos;s drive and its events</extracomment>
        <translation>U 盘</translation>
    </message>
    <message>
        <source>Vault</source>
        <extracomment>Sidebar section: the kept copies</extracomment>
        <translation>保险库</translation>
    </message>
    <message>
        <source>Map</source>
        <extracomment>Sidebar section: the events on a map</extracomment>
        <translation>地图</translation>
    </message>
    <message>
        <source>Drive Health</source>
        <extracomment>Sidebar section: the health of the car&apos;s drive</extracomment>
        <translation>U 盘健康</translation>
    </message>
    <message>
        <source>Open Help — Sentry Mode, clip length, corruption, and encryption explained.</source>
        <translation>打开帮助——哨兵模式、片段时长、损坏和加密的说明。</translation>
    </message>
    <message>
        <source>Drag to resize the event list.</source>
        <translation>拖动可调整事件列表宽度。</translation>
    </message>
    <message>
        <source>You&apos;re exploring sample footage · Connect your Tesla drive anytime</source>
        <translation>您正在浏览示例录像 · 随时可以连接您的特斯拉 U 盘</translation>
    </message>
    <message>
        <source>Eject Sample</source>
        <extracomment>Button that leaves the sample footage</extracomment>
        <translation>退出示例</translation>
    </message>
    <message>
        <source>A Keelhold licence is needed</source>
        <translation>需要 Keelhold 许可证</translation>
    </message>
    <message>
        <source>Reading your own Tesla drive needs a Keelhold licence. Sample footage stays available without one.</source>
        <translation>读取您自己的特斯拉 U 盘需要 Keelhold 许可证。没有许可证也可以使用示例录像。</translation>
    </message>
    <message>
        <source>Keelhold Help</source>
        <extracomment>Menu item that opens the help window</extracomment>
        <translation>Keelhold 帮助</translation>
    </message>
    <message>
        <source>Explore Sample Footage</source>
        <translation>浏览示例录像</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <extracomment>Menu title; &amp; marks the letter for the Alt shortcut</extracomment>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>Use Graphics Hardware for Video</source>
        <translation>使用图形硬件处理视频</translation>
    </message>
    <message>
        <source>Nothing on your drive is ever changed or deleted.</source>
        <translation>U 盘上的任何内容都不会被更改或删除。</translation>
    </message>
    <message>
        <source>Keelhold only reads from your Tesla drive. Every &quot;Keep&quot; makes a verified copy elsewhere — your original footage is never touched.</source>
        <extracomment>&quot;Keep&quot; is the app&apos;s own button; translate it as there</extracomment>
        <translation>Keelhold 只读取您的特斯拉 U 盘。每次“留存”都会在其他位置生成一份经过校验的副本——您的原始录像绝不会被改动。</translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message>
        <source>Unlock Encrypted Footage</source>
        <translation>解锁加密录像</translation>
    </message>
    <message>
        <source>Your car encrypted this footage so that only your Tesla account can watch it. To play it here, Keelhold asks Tesla&apos;s service for each clip&apos;s key, and Tesla first checks that your account owns the car.</source>
        <translation>您的车辆加密了此录像，使只有您的特斯拉账户才能观看。要在这里播放，Keelhold 会向特斯拉的服务请求每个片段的密钥，特斯拉会先确认您的账户拥有该车辆。</translation>
    </message>
    <message>
        <source>What is sent: each clip&apos;s key id and the locked key the car wrote into it, and your car&apos;s VIN. Never any video: the footage stays on this computer.</source>
        <translation>发送的内容：每个片段的密钥 ID、车辆写入其中的被锁定的密钥，以及车辆的 VIN。绝不发送任何视频：录像始终留在这台电脑上。</translation>
    </message>
    <message>
        <source>The keys are kept on this computer and beside the events in your Vault, so unlocked footage plays offline from then on.</source>
        <translation>密钥保存在这台电脑上，以及您保险库中相应事件的旁边，因此此后已解锁的录像可以离线播放。</translation>
    </message>
    <message>
        <source>Your Tesla sign-in</source>
        <translation>您的特斯拉登录</translation>
    </message>
    <message>
        <source>Sign In with Your Browser…</source>
        <translation>使用浏览器登录…</translation>
    </message>
    <message>
        <source>Opens Tesla&apos;s sign-in page in your browser. When you have signed in, copy the address the browser shows and paste it here. This sign-in can be renewed for months without signing in again.</source>
        <translation>在浏览器中打开特斯拉的登录页面。登录后，复制浏览器显示的地址并粘贴到这里。此登录可以续期数月，无需重新登录。</translation>
    </message>
    <message>
        <source>Paste the address your browser landed on</source>
        <translation>粘贴浏览器跳转到的地址</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Or copy the viewer&apos;s sign-in token:</source>
        <translation>或者复制查看器的登录令牌：</translation>
    </message>
    <message>
        <source>Paste your sign-in token</source>
        <translation>粘贴您的登录令牌</translation>
    </message>
    <message>
        <source>Remember on this computer</source>
        <translation>在这台电脑上记住</translation>
    </message>
    <message>
        <source>Kept in your desktop&apos;s secret store (its keyring), never in a plain file. Without it, the sign-in is forgotten when Keelhold quits.</source>
        <translation>保存在您桌面的密钥存储（密钥环）中，绝不保存在普通文件中。如不勾选，登录信息会在 Keelhold 退出时被忘记。</translation>
    </message>
    <message>
        <source>Unlock</source>
        <extracomment>Button that asks Tesla for the keys with the pasted sign-in token</extracomment>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s Viewer</source>
        <translation>打开特斯拉查看器</translation>
    </message>
    <message>
        <source>Forget my sign-in</source>
        <translation>忘记我的登录信息</translation>
    </message>
    <message>
        <source>Sign in again…</source>
        <translation>重新登录…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Asking Tesla for the keys…</source>
        <translation>正在向特斯拉请求密钥…</translation>
    </message>
    <message>
        <source>You&apos;re signed in for as long as Keelhold runs.</source>
        <translation>在 Keelhold 运行期间，您保持登录状态。</translation>
    </message>
    <message>
        <source>You&apos;re signed in, and your sign-in is remembered on this computer.</source>
        <translation>您已登录，且登录信息已保存在这台电脑上。</translation>
    </message>
    <message>
        <source>Some footage is encrypted by your car</source>
        <translation>部分录像已被您的车辆加密</translation>
    </message>
    <message>
        <source>Unlock…</source>
        <translation>解锁…</translation>
    </message>
    <message>
        <source>Turn encryption off for future recordings…</source>
        <translation>为以后的录像关闭加密…</translation>
    </message>
    <message>
        <source>Unlock Encrypted Footage…</source>
        <translation>解锁加密录像…</translation>
    </message>
    <message>
        <source>Open Tesla&apos;s dashcam viewer (%1) in your browser and sign in with your Tesla account.</source>
        <translation>在浏览器中打开特斯拉的行车记录仪查看器（%1），并用您的特斯拉账户登录。</translation>
    </message>
    <message>
        <source>Open the browser&apos;s developer tools (F12) and choose the Network tab.</source>
        <extracomment>&quot;Network&quot; is the tab&apos;s name in the browser&apos;s developer tools</extracomment>
        <translation>打开浏览器的开发者工具（F12），然后选择 Network 标签页。</translation>
    </message>
    <message>
        <source>Paste it below. It works for about eight hours; sign in again after that.</source>
        <translation>将其粘贴到下方。它大约 8 小时内有效；之后请重新登录。</translation>
    </message>
    <message>
        <source>Keelhold lists and keeps them like any other; to watch them here, unlock them with your Tesla account.</source>
        <translation>Keelhold 会像其他录像一样列出并留存它们；要在这里观看，请用您的特斯拉账户解锁。</translation>
    </message>
    <message>
        <source>Play any clip in the viewer, then pick the request named “batch” in the list.</source>
        <extracomment>&quot;batch&quot; is the request&apos;s name as the browser lists it; keep it as it is</extracomment>
        <translation>在查看器中播放任意片段，然后在列表中选择名为“batch”的请求。</translation>
    </message>
    <message>
        <source>Under Request Headers, copy the text after “Authorization: Bearer”.</source>
        <extracomment>&quot;Request Headers&quot; is a heading in the browser&apos;s developer tools; &quot;Authorization: Bearer&quot; stays as it is</extracomment>
        <translation>在 Request Headers 下，复制“Authorization: Bearer”后面的文本。</translation>
    </message>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>此处有 %n 个事件是在车辆开启加密时录制的。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>已解锁 %n 个片段。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>已解锁 %n 个片段中的 %1 个。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Unlocker</name>
    <message>
        <source>The keys couldn&apos;t be saved on this computer, so they work until Keelhold quits and will be asked for again next time.</source>
        <translation>无法将密钥保存在这台电脑上，因此它们只在 Keelhold 退出前有效，下次还需要重新获取。</translation>
    </message>
</context>
<context>
    <name>VaultIndex</name>
    <message>
        <source>There is no Trash folder at %1 and it can&apos;t be made, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>%1 处没有回收站文件夹，且无法创建，因此未移除任何内容。</translation>
    </message>
    <message>
        <source>Couldn&apos;t move %1 to the Trash, so nothing was removed.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>无法将 %1 移至回收站，因此未移除任何内容。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>Couldn&apos;t create the folder %1.</source>
        <extracomment>%1 is a folder&apos;s full path</extracomment>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <extracomment>%1 is a file&apos;s full path, %2 the system&apos;s reason</extracomment>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>The Vault&apos;s index points outside the Vault folder (%1), so nothing was removed.</source>
        <extracomment>%1 is the folder the index names, as written in it</extracomment>
        <translation>保险库的索引指向保险库文件夹之外（%1），因此未移除任何内容。</translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message>
        <source>Faithful Copy</source>
        <translation>原样副本</translation>
    </message>
    <message>
        <source>Every file below was copied and its checksum (SHA-256) was compared to the original on your drive at the time — a faithful, unaltered copy. This is a technical integrity check, not a legal certification.</source>
        <translation>下列每个文件都已复制，并在当时将其校验和（SHA-256）与您 U 盘上的原始文件进行了比对——是一份原样、未经改动的副本。这是技术上的完整性检查，并非法律认证。</translation>
    </message>
    <message>
        <source>Archived %1 from %2</source>
        <extracomment>%1 is when the event was kept, %2 the name of the drive it came from</extracomment>
        <translation>于 %1 从 %2 留存</translation>
    </message>
    <message>
        <source>Missing</source>
        <extracomment>A kept file that is no longer in the Vault</extracomment>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Changed since it was kept</source>
        <translation>留存后已被更改</translation>
    </message>
    <message>
        <source>Couldn&apos;t be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Last re-read %1.</source>
        <extracomment>%1 is the date and time of the last re-reading</extracomment>
        <translation>上次重新读取于 %1。</translation>
    </message>
    <message>
        <source>Not re-read since it was kept.</source>
        <translation>留存后未重新读取过。</translation>
    </message>
    <message>
        <source>Missing from your Vault since it was kept: %1</source>
        <translation>留存后已从您的保险库中缺失：%1</translation>
    </message>
    <message>
        <source>Changed since it was kept: %1</source>
        <translation>留存后已被更改：%1</translation>
    </message>
    <message>
        <source>Files Missing</source>
        <translation>文件缺失</translation>
    </message>
    <message>
        <source>Changed Since It Was Kept</source>
        <translation>留存后已被更改</translation>
    </message>
    <message>
        <source>When Keelhold re-read this event on %1, %2 no longer matched the copy it made. The file named below was changed or removed after it was kept; if the event is still on your drive, keep it again.</source>
        <extracomment>%1 is the day of the re-reading, %2 how many files (&quot;one file&quot;, &quot;3 files&quot;)</extracomment>
        <translation>Keelhold 于 %1 重新读取此事件时，有 %2 与它所做的副本不再一致。下面列出的文件在留存后被更改或移除；如果该事件仍在您的 U 盘上，请重新留存。</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n 个文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%n 个文件中的 %1 个</numerusform>
        </translation>
    </message>
    <message>
        <source>Incomplete — %1</source>
        <translation>不完整——%1</translation>
    </message>
    <message>
        <source>Only part of this event reached your Vault. Keep it again from the drive to finish it.</source>
        <translation>此事件只有一部分进入了您的保险库。请从 U 盘重新留存以完成。</translation>
    </message>
    <message>
        <source>Incomplete Copy</source>
        <translation>副本不完整</translation>
    </message>
    <message>
        <source>The copy of this event was cut off before every file arrived: %1 are here. Each of them was checked as it was copied, but the event is not complete. Keep it again from your drive to finish it.</source>
        <translation>此事件的复制在所有文件到达之前被中断：目前有 %1。其中每个文件在复制时都经过了检查，但该事件并不完整。请从您的 U 盘重新留存以完成。</translation>
    </message>
    <message>
        <source>Verified %1</source>
        <extracomment>The badge of a kept event; %1 is the day it was last re-read</extracomment>
        <translation>已于 %1 校验</translation>
    </message>
    <message>
        <source>Every file was read again on %1 and still matches the checksum taken when it was kept. Tap for the technical detail.</source>
        <translation>每个文件都已于 %1 重新读取，仍与留存时记录的校验和一致。点击查看技术细节。</translation>
    </message>
    <message>
        <source>Verified copy</source>
        <translation>已校验副本</translation>
    </message>
    <message>
        <source>This copy was checked byte-for-byte against your drive when it was archived. Tap for the technical detail.</source>
        <translation>此副本在留存时已与您的 U 盘逐字节比对。点击查看技术细节。</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 缺失</translation>
    </message>
    <message>
        <source>%1 has changed</source>
        <translation>%1 已被更改</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 无法读取</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between file names</extracomment>
        <translation>、</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>An event&apos;s problems in the Vault&apos;s notice: its date and time, then the files</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>; </source>
        <extracomment>Between the events in the Vault&apos;s notice</extracomment>
        <translation>；</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>The Vault notice&apos;s list of events with problems, ended as a sentence</extracomment>
        <translation>%1。</translation>
    </message>
    <message numerus="yes">
        <source>%n more kept events have problems too.</source>
        <translation>
            <numerusform>另有 %n 个留存的事件也有问题。</numerusform>
        </translation>
    </message>
    <message>
        <source>Something changed these copies after they were kept. If the events are still on your drive, keep them again.</source>
        <translation>这些副本在留存后被某种操作更改了。如果这些事件仍在您的 U 盘上，请重新留存。</translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>%n 个留存的事件与留存时不再一致</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>U 盘已断开——%n 个事件中有 %1 个已完整留存</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Stopped</source>
        <translation>备份已停止</translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>备份不完整——%n 个事件中有 %1 个已完整留存</numerusform>
        </translation>
    </message>
    <message>
        <source>Backup Complete</source>
        <translation>备份完成</translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>已复制并逐字节校验 %n 个事件。U 盘上的原始文件未被改动。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>有 %n 个事件只有一部分进入了您的保险库（%2 个文件中的 %1 个），因此它们不是已校验副本。请重新留存以完成。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>有 %n 个事件已在您的保险库中，因此已跳过。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>由于 U 盘断开，有 %n 个文件无法读取。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>有 %n 个文件无法读取——您的 U 盘可能出现故障。没有删除或更改任何内容；您可以重试。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message>
        <source>Vault</source>
        <extracomment>Title of the Vault&apos;s list</extracomment>
        <translation>保险库</translation>
    </message>
    <message>
        <source>Choose Your Vault Folder</source>
        <extracomment>Title of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>选择您的保险库文件夹</translation>
    </message>
    <message>
        <source>Pick (or create) a folder where Keelhold will keep permanent copies of the footage you decide to keep.</source>
        <translation>选择（或新建）一个文件夹，Keelhold 会在其中永久存放您决定留存的录像副本。</translation>
    </message>
    <message>
        <source>Use This Folder</source>
        <extracomment>Accept button of the folder dialog that picks the Vault&apos;s folder</extracomment>
        <translation>使用此文件夹</translation>
    </message>
    <message>
        <source>Change Vault Folder</source>
        <translation>更改保险库文件夹</translation>
    </message>
    <message>
        <source>Point Keelhold at a different folder or drive for your permanent archive.</source>
        <translation>让 Keelhold 使用另一个文件夹或磁盘作为您的永久存档。</translation>
    </message>
    <message>
        <source>How much space your kept footage uses, and how much room the Vault&apos;s disk has left.</source>
        <translation>留存的录像占用了多少空间，以及保险库所在磁盘还剩多少空间。</translation>
    </message>
    <message>
        <source>Move to Trash…</source>
        <extracomment>Menu item of a kept event</extracomment>
        <translation>移至回收站…</translation>
    </message>
    <message>
        <source>Move this event to the Trash?</source>
        <translation>将此事件移至回收站？</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Button that confirms moving the kept event to the Trash</extracomment>
        <translation>移至回收站</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Choose a Different Folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Choose Another Folder…</source>
        <translation>选择另一个文件夹…</translation>
    </message>
    <message>
        <source>Keeping footage safe…</source>
        <translation>正在安全留存录像…</translation>
    </message>
    <message>
        <source>Stops after the current file. Anything already copied and verified stays in your Vault — nothing is undone.</source>
        <translation>在当前文件完成后停止。已复制并校验的内容会保留在您的保险库中——不会撤销任何操作。</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the keep&apos;s report</extracomment>
        <translation>完成</translation>
    </message>
    <message>
        <source>Verify Vault</source>
        <translation>校验保险库</translation>
    </message>
    <message>
        <source>Read every kept file again and compare it with the checksum taken when it was kept.</source>
        <translation>重新读取每个留存的文件，并与留存时记录的校验和进行比较。</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>校验</translation>
    </message>
    <message>
        <source>Choose a Vault Folder</source>
        <translation>选择保险库文件夹</translation>
    </message>
    <message>
        <source>Your Vault is a folder on this %1 (or an external drive you keep) where Keelhold keeps permanent, verified copies of the footage you choose to keep — safe even if your car&apos;s drive fails, fills up, or gets wiped.</source>
        <extracomment>%1 is the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>您的保险库是这台%1上（或您常用的外置磁盘上）的一个文件夹，Keelhold 会在其中为您选择留存的录像存放永久的、经过校验的副本——即使车辆的 U 盘损坏、写满或被清空，这些副本也是安全的。</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Your Vault is empty so far</source>
        <translation>您的保险库目前是空的</translation>
    </message>
    <message>
        <source>Nothing has been kept yet. From the Drive tab, select an event and choose &quot;Keep&quot; to copy it here permanently.</source>
        <extracomment>&quot;Drive&quot; and &quot;Keep&quot; are the app&apos;s own tab and button; translate them as there</extracomment>
        <translation>还没有留存任何内容。请在“U 盘”标签页中选择一个事件，然后选择“留存”，将其永久复制到这里。</translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n 个事件 · %1 · 此磁盘可用 %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n 个事件 · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>已完成 %1/%n 个事件</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused at %1 — that is a different drive; plug in the one this keep was reading</source>
        <translation>已在 %1 处暂停——这是另一个 U 盘；请插入本次留存正在读取的那个 U 盘</translation>
    </message>
    <message>
        <source>Paused at %1 — plug the drive back in to go on</source>
        <translation>已在 %1 处暂停——请重新插入 U 盘以继续</translation>
    </message>
    <message>
        <source>Reading your kept footage again…</source>
        <translation>正在重新读取您留存的录像…</translation>
    </message>
    <message>
        <source>Reading 1 kept event again…</source>
        <translation>正在重新读取 1 个留存的事件…</translation>
    </message>
    <message>
        <source>Reading kept events again: %1 of %2 done</source>
        <translation>正在重新读取留存的事件：已完成 %1/%2</translation>
    </message>
    <message>
        <source>%1 will move to your %2&apos;s Trash, where you can still recover it. Nothing on your Tesla drive is touched.</source>
        <extracomment>%1 is the event&apos;s day and time (&quot;Mon 2:11 AM&quot;), %2 the user&apos;s machine, e.g. &quot;computer&quot;</extracomment>
        <translation>%1 将被移至您%2的回收站，您仍可从中恢复。特斯拉 U 盘上的任何内容都不会受影响。</translation>
    </message>
    <message>
        <source>This drive</source>
        <translation>此 U 盘</translation>
    </message>
    <message>
        <source>Keep new events automatically when this drive is connected</source>
        <translation>连接此 U 盘时自动留存新事件</translation>
    </message>
    <message>
        <source>Recent driving too</source>
        <extracomment>Ticked with the choice above: recent driving is kept as well</extracomment>
        <translation>也包括最近行驶</translation>
    </message>
    <message>
        <source>%1 — Sentry and saved events, each file checked, as soon as it is connected while Keelhold is open.</source>
        <extracomment>%1 is the drive&apos;s name</extracomment>
        <translation>%1——哨兵事件和保存的事件，每个文件都经过检查，在 Keelhold 打开期间一连接就留存。</translation>
    </message>
</context>
<context>
    <name>VideoReencoder</name>
    <message>
        <source>The footage couldn&apos;t be converted for the movie.</source>
        <translation>无法转换录像以生成视频。</translation>
    </message>
    <message>
        <source>There wasn&apos;t enough memory to convert the footage.</source>
        <translation>内存不足，无法转换录像。</translation>
    </message>
    <message>
        <source>The footage couldn&apos;t be encoded: %1.</source>
        <extracomment>%1 is the video library&apos;s reason</extracomment>
        <translation>无法编码录像：%1。</translation>
    </message>
</context>
<context>
    <name>VolumeFormat</name>
    <message>
        <source>FAT32 (MS-DOS)</source>
        <extracomment>Name of a drive format</extracomment>
        <translation>FAT32 (MS-DOS)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <extracomment>Name of a drive format that could not be read</extracomment>
        <translation>未知</translation>
    </message>
</context>
</TS>
