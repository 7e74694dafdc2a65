<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AnswerPage</name>
    <message>
        <source>Service has been connected</source>
        <translation>服务已</translation>
    </message>
    <message>
        <source>successfully</source>
        <translation>成功连接</translation>
    </message>
    <message>
        <source>Service has not been</source>
        <translation>服务未能</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>You can close this page</source>
        <translation>您可以关闭此页面</translation>
    </message>
</context>
<context>
    <name>AudioListWidget</name>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Stop adding</source>
        <translation>停止添加</translation>
    </message>
    <message>
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>添加音频</translation>
    </message>
    <message>
        <source>Add Audio (Ctrl+M)</source>
        <translation>添加音频 (Ctrl+M)</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Repeats the playlist until the slideshow ends.</source>
        <translation>重复播放列表直到幻灯片放映结束。</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Choose offset of selected audio file. Negative offset means audio file will start playing immediately, shifted by specified time. Positive offset means audio file will start playing from the specified time.</source>
        <translation>选择所选音频文件的偏移。负偏移表示音频文件立即开始播放，并移动指定的时间。正偏移表示音频文件从指定的时间处开始播放。</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>淡入淡出</translation>
    </message>
    <message>
        <source>Choose duration of fade effect for audio track. 0 means no fade.</source>
        <translation>选择音轨淡入淡出的时长。0 表示没有淡入淡出。</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
</context>
<context>
    <name>BurnDialog</name>
    <message>
        <source>Device:</source>
        <translation>光驱:</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>光驱</translation>
    </message>
    <message>
        <source>Look for drives and discs again</source>
        <translation>重新查找光驱和光盘</translation>
    </message>
    <message>
        <source>Disc title:</source>
        <translation>光盘标题:</translation>
    </message>
    <message>
        <source>Disc title</source>
        <translation>光盘标题</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>文件名:</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Finalize disk</source>
        <translation>封闭光盘</translation>
    </message>
    <message>
        <source>Finalization means that the disc cannot have any additional data written to it afterwards. This option is needed by most DVD-players.</source>
        <translation>封闭后光盘将无法再写入其他数据。大多数 DVD 播放机需要此选项。</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>刻录 DVD</translation>
    </message>
    <message>
        <source>Disk is not empty</source>
        <translation>光盘不是空的</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Erase the disc, then burn</source>
        <translation>擦除光盘，然后刻录</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Add the video to what is on the disc</source>
        <translation>将视频添加到光盘现有内容中</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Go back without burning</source>
        <translation>返回，不刻录</translation>
    </message>
    <message>
        <source>Writing disk</source>
        <translation>正在写入光盘</translation>
    </message>
    <message>
        <source>Progress of writing</source>
        <translation>写入进度</translation>
    </message>
    <message>
        <source>Elapsed time:</source>
        <translation>已用时间:</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop writing</source>
        <translation>停止写入</translation>
    </message>
    <message>
        <source>Burning result:</source>
        <translation>刻录结果:</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>Creation error</source>
        <translation>创建错误</translation>
    </message>
</context>
<context>
    <name>CreatePanel</name>
    <message>
        <source>Filename:</source>
        <translation>文件名:</translation>
    </message>
    <message>
        <source>Name of the video file</source>
        <translation>视频文件的名称</translation>
    </message>
    <message>
        <source>Format of the video file</source>
        <translation>视频文件的格式</translation>
    </message>
    <message>
        <source>PREVIEW</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Progress of the video</source>
        <translation>视频进度</translation>
    </message>
    <message>
        <source>Time elapsed: 0:00:00</source>
        <translation>已用时间: 0:00:00</translation>
    </message>
    <message>
        <source>Time Remaining: 0:00:00</source>
        <translation>剩余时间: 0:00:00</translation>
    </message>
</context>
<context>
    <name>DesktopNotification</name>
    <message>
        <source>Show the window</source>
        <translation>显示窗口</translation>
    </message>
</context>
<context>
    <name>DiscFileName</name>
    <message>
        <source>Enter a file name.</source>
        <translation>请输入文件名。</translation>
    </message>
    <message>
        <source>The file name is too long for a disc.</source>
        <translation>文件名对光盘来说太长。</translation>
    </message>
    <message>
        <source>The file name must not contain any of / \ : * ? " &lt; &gt; |</source>
        <translation>文件名不能包含以下任何字符: / \ : * ? " &lt; &gt; |</translation>
    </message>
</context>
<context>
    <name>FinalWindow</name>
    <message>
        <source>Conversion has been completed</source>
        <translation>转换已完成</translation>
    </message>
    <message>
        <source>Congratulations to all files in your folder, open it to view them!</source>
        <translation>恭喜！所有文件都在您的文件夹中，打开即可查看！</translation>
    </message>
    <message>
        <source>OPEN FOLDER</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Upload the video to this service</source>
        <translation>将视频上传到此服务</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>刻录 DVD</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>将视频刻录到光盘</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The history has become too large.</source>
        <translation>历史记录过大。</translation>
    </message>
</context>
<context>
    <name>HistoryWidget</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>CLEAR HISTORY</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Finished videos</source>
        <translation>已完成的视频</translation>
    </message>
    <message>
        <source>UNDO</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Bring back what was removed (Ctrl+Z)</source>
        <translation>恢复已移除的内容 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Close this note</source>
        <translation>关闭此提示</translation>
    </message>
    <message>
        <source>RESUME PROJECT</source>
        <translation>继续项目</translation>
    </message>
    <message>
        <source>Open the project of the selected video in the editor</source>
        <translation>在编辑器中打开所选视频的项目</translation>
    </message>
    <message>
        <source>BURN DVD</source>
        <translation>刻录 DVD</translation>
    </message>
    <message>
        <source>Burn the selected video to a disc</source>
        <translation>将所选视频刻录到光盘</translation>
    </message>
    <message>
        <source>UPLOAD</source>
        <translation>上传</translation>
    </message>
    <message>
        <source>Upload the selected video to a service</source>
        <translation>将所选视频上传到服务</translation>
    </message>
    <message>
        <source>Progress of the upload</source>
        <translation>上传进度</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Connection ...</source>
        <translation>正在连接 ...</translation>
    </message>
    <message>
        <source>Sign in on the page that was opened in your browser.</source>
        <translation>请在浏览器中打开的页面上登录。</translation>
    </message>
</context>
<context>
    <name>HttpAnswer</name>
    <message>
        <source>The service cannot be reached.</source>
        <translation>无法连接到服务。</translation>
    </message>
    <message>
        <source>The connection to the service was lost.</source>
        <translation>与服务的连接已断开。</translation>
    </message>
    <message>
        <source>The connection to the service is not secure.</source>
        <translation>与服务的连接不安全。</translation>
    </message>
    <message>
        <source>The service does not answer.</source>
        <translation>服务没有响应。</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>无法理解服务的答复。</translation>
    </message>
</context>
<context>
    <name>ImageLoader</name>
    <message>
        <source>is not a picture that can be read</source>
        <translation>不是可读取的图片</translation>
    </message>
    <message>
        <source>is damaged or incomplete</source>
        <translation>已损坏或不完整</translation>
    </message>
    <message>
        <source>does not exist</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>is too large</source>
        <translation>太大</translation>
    </message>
    <message>
        <source>is too large (%1 x %2 pixels)</source>
        <translation>太大 (%1 x %2 像素)</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>文件大于 %1 MB。</translation>
    </message>
    <message>
        <source>This is not a regular file.</source>
        <translation>这不是普通文件。</translation>
    </message>
</context>
<context>
    <name>MainView</name>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>The folder "%1" does not exist any more.</source>
        <translation>文件夹“%1”已不存在。</translation>
    </message>
    <message>
        <source>There is no program to show the folder "%1".</source>
        <translation>没有可以显示文件夹“%1”的程序。</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
</context>
<context>
    <name>MediaSuffixes</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>无法读取文件夹。</translation>
    </message>
</context>
<context>
    <name>ProjectName</name>
    <message>
        <source>Project name should not contain any of these symbols: *:[]{}\/!</source>
        <translation>项目名称不能包含以下任何符号: *:[]{}\/!</translation>
    </message>
</context>
<context>
    <name>SetNameForm</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Title of the video</source>
        <translation>视频的标题</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>UPDATE</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Close the settings</source>
        <translation>关闭设置</translation>
    </message>
    <message>
        <source>Close without saving (Esc)</source>
        <translation>关闭而不保存 (Esc)</translation>
    </message>
    <message>
        <source>Default Settings for slideshow:</source>
        <translation>幻灯片放映的默认设置:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>How long a new slide is shown</source>
        <translation>新幻灯片显示多久</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>切换效果</translation>
    </message>
    <message>
        <source>How a new slide comes in</source>
        <translation>新幻灯片如何出现</translation>
    </message>
    <message>
        <source>Transition Time</source>
        <translation>切换时间</translation>
    </message>
    <message>
        <source>How long each transition lasts</source>
        <translation>每次切换持续多久</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>The size of the picture of a new slideshow</source>
        <translation>新幻灯片放映的画面尺寸</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>适应画面</translation>
    </message>
    <message>
        <source>Enlarge small photos so that they fill the picture</source>
        <translation>放大小照片以填满画面</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>原始比例</translation>
    </message>
    <message>
        <source>Keep the shape of the photos instead of stretching them</source>
        <translation>保持照片形状而不拉伸</translation>
    </message>
    <message>
        <source>Default audio settings:</source>
        <translation>音频的默认设置:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>When the music begins</source>
        <translation>音乐何时开始</translation>
    </message>
    <message>
        <source>Fade</source>
        <translation>淡入淡出</translation>
    </message>
    <message>
        <source>How long the music takes to come and go</source>
        <translation>音乐淡入淡出的时长</translation>
    </message>
    <message>
        <source>Export options:</source>
        <translation>导出选项:</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>The folder that videos are written to</source>
        <translation>写入视频的文件夹</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Output profile</source>
        <translation>输出配置</translation>
    </message>
    <message>
        <source>Original quality keeps every detail. Plays everywhere makes smaller files that televisions and phones play too.</source>
        <translation>“原始质量”保留每个细节。“随处可播”生成更小的文件，电视和手机也能播放。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>The language of the program</source>
        <translation>程序的语言</translation>
    </message>
    <message>
        <source>Increase speed of generation</source>
        <translation>加快创建速度</translation>
    </message>
    <message>
        <source>Make two slides at the same time</source>
        <translation>同时制作两张幻灯片</translation>
    </message>
    <message>
        <source>Check for the updates automatically</source>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Send anonymous usage statistics</source>
        <translation>发送匿名使用统计</translation>
    </message>
    <message>
        <source>Helps to improve the program. No names, photos or texts are sent.</source>
        <translation>有助于改进程序。不会发送名称、照片或文字。</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the settings (Ctrl+Enter)</source>
        <translation>保存设置 (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>SlidesPage</name>
    <message>
        <source>Slides</source>
        <translation>幻灯片</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>随机排列照片</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>排序照片</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>旋转照片</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>向左旋转照片</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>删除幻灯片</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>重新显示标题幻灯片</translation>
    </message>
    <message>
        <source>Change all:</source>
        <translation>全部更改:</translation>
    </message>
    <message>
        <source>Time of every slide</source>
        <translation>所有幻灯片的时间</translation>
    </message>
    <message>
        <source>Transition of every slide</source>
        <translation>所有幻灯片的切换效果</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Show what the slideshow is made of</source>
        <translation>显示幻灯片放映的组成</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
</context>
<context>
    <name>TextEditWidget</name>
    <message>
        <source>Back to the slides (Esc)</source>
        <translation>返回幻灯片 (Esc)</translation>
    </message>
    <message>
        <source>Back to the slides</source>
        <translation>返回幻灯片</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>文字:</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>在此输入文字</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>Also the title slide</source>
        <translation>也包括标题幻灯片</translation>
    </message>
    <message>
        <source>Text settings:</source>
        <translation>文字设置:</translation>
    </message>
    <message>
        <source>Family</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Bg Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Effect with which the text appears</source>
        <translation>文字出现的效果</translation>
    </message>
    <message>
        <source>Show how the text appears (F5)</source>
        <translation>显示文字如何出现 (F5)</translation>
    </message>
    <message>
        <source>Show how the text appears</source>
        <translation>显示文字如何出现</translation>
    </message>
    <message>
        <source>Text position:</source>
        <translation>文字位置:</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>文字位置</translation>
    </message>
    <message>
        <source>Picture of the slide</source>
        <translation>幻灯片的图片</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>背景:</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Leave the slide as it was (Esc)</source>
        <translation>保持幻灯片原样 (Esc)</translation>
    </message>
    <message>
        <source>SAVE TEXT</source>
        <translation>保存文字</translation>
    </message>
    <message>
        <source>Save (Ctrl+Enter)</source>
        <translation>保存 (Ctrl+Enter)</translation>
    </message>
</context>
<context>
    <name>ToolRow</name>
    <message>
        <source>Add Photo</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Open the folder of the last video</source>
        <translation>打开上一个视频的文件夹</translation>
    </message>
</context>
<context>
    <name>TransitionType</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Random</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>Pixelate</source>
        <translation>像素化</translation>
    </message>
    <message>
        <source>Mosaic Spiral In</source>
        <translation>马赛克螺旋向内</translation>
    </message>
    <message>
        <source>Mosaic Spiral Out</source>
        <translation>马赛克螺旋向外</translation>
    </message>
    <message>
        <source>Mosaic Strips</source>
        <translation>马赛克条带</translation>
    </message>
    <message>
        <source>Mosaic Wall</source>
        <translation>马赛克墙</translation>
    </message>
    <message>
        <source>Checkerboard</source>
        <translation>棋盘</translation>
    </message>
    <message>
        <source>Rotate Single Out</source>
        <translation>旋转退出</translation>
    </message>
    <message>
        <source>Rotate Single In</source>
        <translation>旋转进入</translation>
    </message>
    <message>
        <source>Flip Over</source>
        <translation>翻转</translation>
    </message>
    <message>
        <source>Wipe Left To Right</source>
        <translation>从左到右擦除</translation>
    </message>
    <message>
        <source>Wipe Right To Left</source>
        <translation>从右到左擦除</translation>
    </message>
    <message>
        <source>Wipe Top To Bottom</source>
        <translation>从上到下擦除</translation>
    </message>
    <message>
        <source>Wipe Bottom To Top</source>
        <translation>从下到上擦除</translation>
    </message>
    <message>
        <source>Wipe Vertical In</source>
        <translation>垂直向内擦除</translation>
    </message>
    <message>
        <source>Wipe Vertical Out</source>
        <translation>垂直向外擦除</translation>
    </message>
    <message>
        <source>Stretch Horizontal</source>
        <translation>水平拉伸</translation>
    </message>
    <message>
        <source>Stretch Vertical</source>
        <translation>垂直拉伸</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Slide From Bottom</source>
        <translation>从底部滑入</translation>
    </message>
    <message>
        <source>Slide From Left</source>
        <translation>从左侧滑入</translation>
    </message>
    <message>
        <source>Slide From Right</source>
        <translation>从右侧滑入</translation>
    </message>
    <message>
        <source>Slide From Top</source>
        <translation>从顶部滑入</translation>
    </message>
    <message>
        <source>Slide From Top Left</source>
        <translation>从左上角滑入</translation>
    </message>
    <message>
        <source>Fade To Black</source>
        <translation>淡化到黑色</translation>
    </message>
    <message>
        <source>Cross fade</source>
        <translation>交叉淡化</translation>
    </message>
    <message>
        <source>Fade To White</source>
        <translation>淡化到白色</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>DOWNLOAD</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>UploadFailWindow</name>
    <message>
        <source>Upload stopped with error</source>
        <translation>上传因错误而停止</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>UploadSuccessWindow</name>
    <message>
        <source>Uploading has been completed</source>
        <translation>上传已完成</translation>
    </message>
    <message>
        <source>Congratulations! Your file upload to %1 was successful!</source>
        <translation>恭喜！您的文件已成功上传到 %1！</translation>
    </message>
    <message>
        <source>OPEN</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ValueLists</name>
    <message>
        <source>%1 sec</source>
        <translation>%1 秒</translation>
    </message>
</context>
<context>
    <name>VideoDialog</name>
    <message>
        <source>Picture of the video</source>
        <translation>视频画面</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Position in the video (arrow keys)</source>
        <translation>视频中的位置 (方向键)</translation>
    </message>
    <message>
        <source>Position in the video</source>
        <translation>视频中的位置</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
</context>
<context>
    <name>velmora::VideoDialog</name>
    <message>
        <source>Pause (Space)</source>
        <translation>暂停 (空格)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
</context>
<context>
    <name>VideoPlayerWidget</name>
    <message>
        <source>Full preview</source>
        <translation>完整预览</translation>
    </message>
    <message>
        <source>Preview picture</source>
        <translation>预览图片</translation>
    </message>
    <message>
        <source>Position in the preview (arrow keys)</source>
        <translation>预览位置 (方向键)</translation>
    </message>
    <message>
        <source>Position in the preview</source>
        <translation>预览位置</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>静音 (M)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Full screen (F)</source>
        <translation>全屏 (F)</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Preview slideshow</source>
        <translation>预览幻灯片放映</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>播放整个幻灯片放映</translation>
    </message>
    <message>
        <source>Repeat transition</source>
        <translation>重播切换效果</translation>
    </message>
    <message>
        <source>Play the transition to the selected slide</source>
        <translation>播放到所选幻灯片的切换效果</translation>
    </message>
</context>
<context>
    <name>VideoSettings</name>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Choose resolution of your slideshow</source>
        <translation>选择幻灯片放映的分辨率</translation>
    </message>
    <message>
        <source>?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Transition duration</source>
        <translation>切换时间</translation>
    </message>
    <message>
        <source>Choose length of transition effects. Affects all transitions in current slideshow</source>
        <translation>选择切换效果的时长。影响当前幻灯片放映中的所有切换效果</translation>
    </message>
    <message>
        <source>If you want images to be resized to fit the screen leave the checkbox checked. Otheriwse they stay original size.</source>
        <translation>如果希望图片适应屏幕，请保持勾选。否则保持原始尺寸。</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>适应画面</translation>
    </message>
    <message>
        <source>If you want to keep original aspect ratio of the photos leave checkbox checked. Otherwise they will be stretched to chosen resolution.</source>
        <translation>如果希望保持照片的原始比例，请保持勾选。否则照片会被拉伸到所选分辨率。</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>原始比例</translation>
    </message>
</context>
<context>
    <name>velmora::AudioDecoder</name>
    <message>
        <source>There is no sound in it.</source>
        <translation>其中没有声音。</translation>
    </message>
    <message>
        <source>The sound format "%1" is not supported.</source>
        <translation>不支持音频格式“%1”。</translation>
    </message>
</context>
<context>
    <name>velmora::AudioFilesController</name>
    <message>
        <source>%1 cannot be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>%1, cannot be read</source>
        <translation>%1，无法读取</translation>
    </message>
    <message>
        <source>%1, length %2</source>
        <translation>%1，时长 %2</translation>
    </message>
    <message>
        <source>Audio Files (%1)</source>
        <translation>音频文件 (%1)</translation>
    </message>
</context>
<context>
    <name>velmora::AudioListWidget</name>
    <message>
        <source>Adding: %1</source>
        <translation>正在添加: %1</translation>
    </message>
    <message>
        <source>Adding...</source>
        <translation>正在添加 ...</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>正在试听</translation>
    </message>
    <message>
        <source>%1 cannot be played: %2</source>
        <translation>无法播放 %1: %2</translation>
    </message>
    <message>
        <source>Drag &amp; drop audio files to create a playlist</source>
        <translation>拖放音频文件以创建播放列表</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Stop listening</source>
        <translation>停止试听</translation>
    </message>
    <message>
        <source>Listen</source>
        <translation>试听</translation>
    </message>
    <message>
        <source>Total: %1 %2 (%3)</source>
        <translation>总计: %1 %2 (%3)</translation>
    </message>
    <message>
        <source>track</source>
        <translation>首</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>首</translation>
    </message>
    <message>
        <source>Open File</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Adding audio files</source>
        <translation>添加音频文件</translation>
    </message>
    <message>
        <source>Not all audio files have been added</source>
        <translation>并非所有音频文件都已添加</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>velmora::AudioNoFocusRectangleDelegate</name>
    <message>
        <source>missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Listen (Space)</source>
        <translation>试听 (空格)</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>停止 (空格)</translation>
    </message>
    <message>
        <source>Delete (Del)</source>
        <translation>删除 (Del)</translation>
    </message>
</context>
<context>
    <name>velmora::BackgroundPicker</name>
    <message>
        <source>Background %1</source>
        <translation>背景 %1</translation>
    </message>
</context>
<context>
    <name>velmora::BaseOauth2Uploader</name>
    <message>
        <source>source file not found</source>
        <translation>找不到源文件</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>无法打开源文件进行读取</translation>
    </message>
    <message>
        <source>Operation was canceled</source>
        <translation>操作已取消</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>授权错误</translation>
    </message>
    <message>
        <source>There is no program to show the sign-in page.</source>
        <translation>没有可以显示登录页面的程序。</translation>
    </message>
</context>
<context>
    <name>velmora::BurnDialog</name>
    <message>
        <source>%1 (%2 - %3 %4)</source>
        <translation>%1 (%2 - %3 %4)</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Burn DVD</source>
        <translation>刻录 DVD</translation>
    </message>
    <message>
        <source>My slideshow</source>
        <translation>我的幻灯片放映</translation>
    </message>
    <message>
        <source>Looking for drives…</source>
        <translation>正在查找光驱…</translation>
    </message>
    <message>
        <source>No drive that can write discs was found.</source>
        <translation>未找到可以刻录光盘的光驱。</translation>
    </message>
    <message>
        <source>Looking at the disc…</source>
        <translation>正在检查光盘…</translation>
    </message>
    <message>
        <source>Media disk is not ready</source>
        <translation>光盘尚未就绪</translation>
    </message>
    <message>
        <source>There is not enough disc space for the slideshow</source>
        <translation>光盘空间不足，放不下幻灯片放映</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "No" if you want just to burn (add) new files to the disc.
Press "Cancel" to cancel the operation.</source>
        <translation>光盘不是空的。要在刻录前擦除光盘吗？
按“是”在刻录前擦除光盘。
按“否”仅将新文件刻录（添加）到光盘。
按“取消”取消操作。</translation>
    </message>
    <message>
        <source>Disc is not empty. Do you want to erase disc before burning?
Press "Yes" if you want to erase disc before burning.
Press "Cancel" to cancel the operation.</source>
        <translation>光盘不是空的。要在刻录前擦除光盘吗？
按“是”在刻录前擦除光盘。
按“取消”取消操作。</translation>
    </message>
    <message>
        <source>A disc whose writing is stopped can become unusable. Stop writing?</source>
        <translation>停止写入的光盘可能无法再使用。停止写入吗？</translation>
    </message>
    <message>
        <source>STOP</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Succeeded</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The video is on the disc.</source>
        <translation>视频已写入光盘。</translation>
    </message>
    <message>
        <source>The video was not written to the disc. The file on your computer is as it was.</source>
        <translation>视频未写入光盘。您电脑上的文件没有变化。</translation>
    </message>
</context>
<context>
    <name>velmora::BusyNote</name>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Stop and leave everything as it was</source>
        <translation>停止并保持一切原样</translation>
    </message>
</context>
<context>
    <name>velmora::ColorBox</name>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>Light gray</source>
        <translation>浅灰色</translation>
    </message>
    <message>
        <source>Dark gray</source>
        <translation>深灰色</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Dark red</source>
        <translation>深红色</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>金色</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>沙色</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>棕色</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>青柠色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Aqua</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>自定义 ...</translation>
    </message>
</context>
<context>
    <name>velmora::ComboBoxItemDelegate</name>
    <message>
        <source>Choose for this slide, or for all selected ones</source>
        <translation>为此幻灯片或所有选中的幻灯片选择</translation>
    </message>
</context>
<context>
    <name>velmora::Composer</name>
    <message>
        <source>The render program %1 could not be started: %2</source>
        <translation>无法启动渲染程序 %1: %2</translation>
    </message>
    <message>
        <source>The render program ended unexpectedly.</source>
        <translation>渲染程序意外结束。</translation>
    </message>
</context>
<context>
    <name>velmora::ConcatList</name>
    <message>
        <source>The file name "%1" contains a line break.</source>
        <translation>文件名“%1”包含换行符。</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1: %2</translation>
    </message>
</context>
<context>
    <name>velmora::CreatePanel</name>
    <message>
        <source>Make the video</source>
        <translation>创建视频</translation>
    </message>
    <message>
        <source>Play the whole slideshow</source>
        <translation>播放整个幻灯片放映</translation>
    </message>
    <message>
        <source>The video cannot be made</source>
        <translation>无法创建视频</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The video is ready, but it could not be entered in the history: %1</source>
        <translation>视频已完成，但无法加入历史记录: %1</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressPage</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time Elapsed: %1</source>
        <translation>已用时间: %1</translation>
    </message>
    <message>
        <source>Time Remaining: %1</source>
        <translation>剩余时间: %1</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Finishing the video</source>
        <translation>正在完成视频</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>Making the video (%1x)</source>
        <translation>正在创建视频 (%1x)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
</context>
<context>
    <name>velmora::OutputCheck</name>
    <message>
        <source>Filename</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>The video needs a file name.</source>
        <translation>视频需要文件名。</translation>
    </message>
    <message>
        <source>The folder %1 does not exist and cannot be made.</source>
        <translation>文件夹 %1 不存在且无法创建。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to: %2</source>
        <translation>无法写入文件夹 %1: %2</translation>
    </message>
    <message>
        <source>The video cannot be saved</source>
        <translation>无法保存视频</translation>
    </message>
    <message>
        <source>Please choose another folder in the settings.</source>
        <translation>请在设置中选择其他文件夹。</translation>
    </message>
    <message>
        <source>Replace the video</source>
        <translation>替换视频</translation>
    </message>
    <message>
        <source>The file %1 exists already. Do you want to replace it?</source>
        <translation>文件 %1 已存在。要替换它吗？</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>REPLACE</source>
        <translation>替换</translation>
    </message>
</context>
<context>
    <name>velmora::RenderedProject</name>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
</context>
<context>
    <name>velmora::DocumentActions</name>
    <message>
        <source>Unsaved changes</source>
        <translation>未保存的更改</translation>
    </message>
    <message>
        <source>Do you want to save the changes to "%1"?</source>
        <translation>要保存对“%1”的更改吗？</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>DON'T SAVE</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>SAVE</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>关闭程序</translation>
    </message>
    <message>
        <source>A video is being made. If you close the program now, it is lost.</source>
        <translation>正在创建视频。如果现在关闭程序，视频将会丢失。</translation>
    </message>
    <message>
        <source>A video is being uploaded. If you close the program now, it is not completed.</source>
        <translation>正在上传视频。如果现在关闭程序，上传将无法完成。</translation>
    </message>
    <message>
        <source>STOP AND CLOSE</source>
        <translation>停止并关闭</translation>
    </message>
    <message>
        <source>GO ON</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Restore the slideshow</source>
        <translation>恢复幻灯片放映</translation>
    </message>
    <message>
        <source>The program ended before "%1" was saved. Do you want to restore it?</source>
        <translation>程序在“%1”保存之前结束。要恢复它吗？</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>打开幻灯片放映</translation>
    </message>
    <message>
        <source>The file "%1" cannot be opened as a slideshow.</source>
        <translation>无法将文件“%1”作为幻灯片放映打开。</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Slideshows (*.json)</source>
        <translation>幻灯片放映 (*.json)</translation>
    </message>
    <message>
        <source>Save the slideshow</source>
        <translation>保存幻灯片放映</translation>
    </message>
    <message>
        <source>The slideshow cannot be saved to "%1".</source>
        <translation>无法将幻灯片放映保存到“%1”。</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::ApiRequest</name>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxClient::DropboxUploader</name>
    <message>
        <source>source file not found</source>
        <translation>找不到源文件</translation>
    </message>
    <message>
        <source>can't open source file for reading</source>
        <translation>无法打开源文件进行读取</translation>
    </message>
    <message>
        <source>The answer of the service cannot be understood.</source>
        <translation>无法理解服务的答复。</translation>
    </message>
</context>
<context>
    <name>velmora::DropboxUpload</name>
    <message>
        <source>Operation was canceled</source>
        <translation>操作已取消</translation>
    </message>
</context>
<context>
    <name>velmora::EditorSide</name>
    <message>
        <source>Preview and settings</source>
        <translation>预览和设置</translation>
    </message>
</context>
<context>
    <name>velmora::EncoderAdvice</name>
    <message>
        <source>FFmpeg was not found. Please install it (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>未找到 FFmpeg。请安装它（在 Debian 和 Ubuntu 上: sudo apt install ffmpeg）。</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install version 4.4 or newer (on Debian and Ubuntu: sudo apt install ffmpeg).</source>
        <translation>FFmpeg %1 (%2) 版本太旧。请安装 4.4 或更新版本（在 Debian 和 Ubuntu 上: sudo apt install ffmpeg）。</translation>
    </message>
    <message>
        <source>FFmpeg was not found. It comes with Velmora: please install Velmora again, or put ffmpeg.exe into its folder.</source>
        <translation>未找到 FFmpeg。它随 Velmora 一起提供：请重新安装 Velmora，或将 ffmpeg.exe 放入其文件夹。</translation>
    </message>
    <message>
        <source>FFmpeg %1 (%2) is too old. Please install Velmora again, or put ffmpeg.exe of version 4.4 or newer into its folder.</source>
        <translation>FFmpeg %1 (%2) 版本太旧。请重新安装 Velmora，或将 4.4 或更新版本的 ffmpeg.exe 放入其文件夹。</translation>
    </message>
</context>
<context>
    <name>velmora::FinalWindow</name>
    <message>
        <source>Open file Error</source>
        <translation>打开文件错误</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>找不到文件“%1”</translation>
    </message>
    <message>
        <source>There is no program to show the folder of '%1'.</source>
        <translation>没有可以显示“%1”所在文件夹的程序。</translation>
    </message>
</context>
<context>
    <name>velmora::FrameWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1: %2</translation>
    </message>
    <message>
        <source>A frame of %1x%2 pixels cannot be compressed.</source>
        <translation>无法压缩 %1x%2 像素的画面。</translation>
    </message>
</context>
<context>
    <name>velmora::GeneratorThread</name>
    <message>
        <source>No folder for temporary files can be made as "%1": %2</source>
        <translation>无法创建临时文件夹“%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::HelpBubble</name>
    <message>
        <source>Help for %1</source>
        <translation>“%1”的帮助</translation>
    </message>
</context>
<context>
    <name>velmora::HelpDialog</name>
    <message>
        <source>Create the video, or save a text</source>
        <translation>创建视频，或保存文字</translation>
    </message>
    <message>
        <source>Preview the whole slideshow</source>
        <translation>预览整个幻灯片放映</translation>
    </message>
    <message>
        <source>Play or pause the preview</source>
        <translation>播放或暂停预览</translation>
    </message>
    <message>
        <source>Mute the preview</source>
        <translation>预览静音</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>退出而不保存</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>From photos to a video</source>
        <translation>从照片到视频</translation>
    </message>
    <message>
        <source>1. Add photos or folders, with the buttons or by dropping them on the window.</source>
        <translation>1. 用按钮或拖放到窗口的方式添加照片或文件夹。</translation>
    </message>
    <message>
        <source>2. Put them in order by dragging, and choose times and transitions.</source>
        <translation>2. 通过拖动排列顺序，并选择时间和切换效果。</translation>
    </message>
    <message>
        <source>3. Add texts to slides and music to the slideshow, and look at the preview.</source>
        <translation>3. 为幻灯片添加文字，为放映添加音乐，然后查看预览。</translation>
    </message>
    <message>
        <source>4. Choose a name and a format, and press CREATE.</source>
        <translation>4. 选择名称和格式，然后按“创建”。</translation>
    </message>
    <message>
        <source>5. Watch, upload or burn the video from the history.</source>
        <translation>5. 从历史记录中观看、上传或刻录视频。</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>In the editor</source>
        <translation>在编辑器中</translation>
    </message>
    <message>
        <source>OPEN MANUAL</source>
        <translation>打开手册</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Go back in the preview</source>
        <translation>在预览中后退</translation>
    </message>
    <message>
        <source>Go forward in the preview</source>
        <translation>在预览中前进</translation>
    </message>
    <message>
        <source>Show the preview on the full screen</source>
        <translation>全屏显示预览</translation>
    </message>
    <message>
        <source>Play the effect of a text</source>
        <translation>播放文字效果</translation>
    </message>
</context>
<context>
    <name>velmora::HelpPages</name>
    <message>
        <source>Home page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>No home page is set up in this copy of the program.</source>
        <translation>此程序副本中未设置主页。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryHeader</name>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Sort by this column</source>
        <translation>按此列排序</translation>
    </message>
    <message>
        <source>Sorts the list</source>
        <translation>对列表排序</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryListView</name>
    <message>
        <source>Your finished slideshows appear here.</source>
        <translation>已完成的幻灯片放映会显示在这里。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryRowWidget</name>
    <message>
        <source>%1:%2:%3</source>
        <translation>%1:%2:%3</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Open the project in the editor</source>
        <translation>在编辑器中打开项目</translation>
    </message>
    <message>
        <source>Play the video</source>
        <translation>播放视频</translation>
    </message>
    <message>
        <source>Burn the video to a disc</source>
        <translation>将视频刻录到光盘</translation>
    </message>
    <message>
        <source>Remove the video from the history</source>
        <translation>从历史记录中移除视频</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>已移除</translation>
    </message>
    <message>
        <source>The video file does not exist any more.</source>
        <translation>视频文件已不存在。</translation>
    </message>
</context>
<context>
    <name>velmora::HistoryWidget</name>
    <message>
        <source>Open file Error</source>
        <translation>打开文件错误</translation>
    </message>
    <message>
        <source>File '%1' not found</source>
        <translation>找不到文件“%1”</translation>
    </message>
    <message>
        <source>There is no program to play the file '%1'.</source>
        <translation>没有可以播放文件“%1”的程序。</translation>
    </message>
    <message>
        <source>Remove from the history</source>
        <translation>从历史记录中移除</translation>
    </message>
    <message>
        <source>Remove "%1" from the history?</source>
        <translation>要从历史记录中移除“%1”吗？</translation>
    </message>
    <message>
        <source>Also move the video file to the trash</source>
        <translation>同时将视频文件移到回收站</translation>
    </message>
    <message>
        <source>REMOVE</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Clear the history</source>
        <translation>清除历史记录</translation>
    </message>
    <message numerus="yes">
        <source>Remove all videos (%n) from the history?</source>
        <translation><numerusform>要从历史记录中移除全部 %n 个视频吗？</numerusform></translation>
    </message>
    <message>
        <source>Also move the video files to the trash</source>
        <translation>同时将视频文件移到回收站</translation>
    </message>
    <message>
        <source>REMOVE ALL</source>
        <translation>全部移除</translation>
    </message>
    <message>
        <source>Some video files could not be moved to the trash. They are where they were.</source>
        <translation>部分视频文件无法移到回收站，它们仍在原处。</translation>
    </message>
    <message>
        <source>Some video files could not be taken out of the trash.</source>
        <translation>部分视频文件无法从回收站取回。</translation>
    </message>
    <message numerus="yes">
        <source>Videos removed from the history: %n</source>
        <translation><numerusform>已从历史记录中移除 %n 个视频。</numerusform></translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>The history could not be changed: %1</source>
        <translation>无法更改历史记录: %1</translation>
    </message>
    <message>
        <source>Elapsed: %1</source>
        <translation>已用: %1</translation>
    </message>
    <message>
        <source>Uploading %1 to %2</source>
        <translation>正在将 %1 上传到 %2</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>连接到 %1</translation>
    </message>
</context>
<context>
    <name>velmora::InputCheck</name>
    <message numerus="yes">
        <source>%n more file(s) cannot be used.</source>
        <translation><numerusform>另有 %n 个文件无法使用。</numerusform></translation>
    </message>
    <message>
        <source>The video would replace "%1", of which it is made. Please choose another name.</source>
        <translation>视频会替换“%1”，而该文件是视频的素材。请选择其他名称。</translation>
    </message>
</context>
<context>
    <name>velmora::InputFiles</name>
    <message>
        <source>The folder "%1" cannot be read.</source>
        <translation>无法读取文件夹“%1”。</translation>
    </message>
    <message>
        <source>The photo "%1" does not exist.</source>
        <translation>照片“%1”不存在。</translation>
    </message>
    <message>
        <source>"%1" is not a photo of a known format.</source>
        <translation>“%1”不是已知格式的照片。</translation>
    </message>
    <message>
        <source>There are no photos in the folder "%1".</source>
        <translation>文件夹“%1”中没有照片。</translation>
    </message>
    <message>
        <source>The sound file "%1" does not exist.</source>
        <translation>音频文件“%1”不存在。</translation>
    </message>
    <message>
        <source>"%1" is not a sound file of a known format.</source>
        <translation>“%1”不是已知格式的音频文件。</translation>
    </message>
    <message>
        <source>There are no sound files in the folder "%1".</source>
        <translation>文件夹“%1”中没有音频文件。</translation>
    </message>
</context>
<context>
    <name>velmora::MainMenu</name>
    <message>
        <source>New slideshow</source>
        <translation>新建幻灯片放映</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>打开 ...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as...</source>
        <translation>另存为 ...</translation>
    </message>
    <message>
        <source>Set video title...</source>
        <translation>设置视频标题 ...</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>主页</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
</context>
<context>
    <name>velmora::MainView</name>
    <message>
        <source>The video is ready</source>
        <translation>视频已完成</translation>
    </message>
    <message>
        <source>The upload has failed</source>
        <translation>上传失败</translation>
    </message>
    <message>
        <source>The upload is complete</source>
        <translation>上传已完成</translation>
    </message>
    <message>
        <source>Another video is being uploaded.</source>
        <translation>正在上传另一个视频。</translation>
    </message>
</context>
<context>
    <name>velmora::MainWindowWidget</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>undo or redo, and what</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Add Audio</source>
        <translation>添加音频</translation>
    </message>
    <message>
        <source>Photos are still being added</source>
        <translation>仍在添加照片</translation>
    </message>
    <message>
        <source>Audio files are still being added</source>
        <translation>仍在添加音频文件</translation>
    </message>
    <message>
        <source>The photos are still being sorted</source>
        <translation>仍在排序照片</translation>
    </message>
    <message>
        <source>A text is still being edited</source>
        <translation>仍在编辑文字</translation>
    </message>
</context>
<context>
    <name>velmora::MakeCommand</name>
    <message>
        <source>The project cannot be written as "%1": %2.</source>
        <translation>无法将项目写入“%1”: %2。</translation>
    </message>
    <message>
        <source>"velmoratool --help" lists what is possible.</source>
        <translation>“velmoratool --help”会列出可用选项。</translation>
    </message>
</context>
<context>
    <name>velmora::MakeOptions</name>
    <message>
        <source>"%1" is not a whole number from %2 to %3.</source>
        <translation>“%1”不是 %2 到 %3 之间的整数。</translation>
    </message>
    <message>
        <source>The text is empty.</source>
        <translation>文字为空。</translation>
    </message>
    <message>
        <source>"%1" is not a size such as 1920x1080.</source>
        <translation>“%1”不是 1920x1080 这样的尺寸。</translation>
    </message>
    <message>
        <source>There is no transition "%1". There are: %2.</source>
        <translation>没有切换效果“%1”。可用的有: %2。</translation>
    </message>
    <message>
        <source>"%1" is none of name, date and given.</source>
        <translation>“%1”不是 name、date 或 given。</translation>
    </message>
    <message>
        <source>"%1" is neither original nor everywhere.</source>
        <translation>“%1”既不是 original 也不是 everywhere。</translation>
    </message>
    <message>
        <source>The name of the video "%1" must end in one of: %2.</source>
        <translation>视频名称“%1”必须以下列之一结尾: %2。</translation>
    </message>
    <message>
        <source>A file name is empty.</source>
        <translation>有一个文件名为空。</translation>
    </message>
    <message>
        <source>"%1" belongs to no option.</source>
        <translation>“%1”不属于任何选项。</translation>
    </message>
    <message>
        <source>There is no option --%1.</source>
        <translation>没有选项 --%1。</translation>
    </message>
    <message>
        <source>--%1 takes no value.</source>
        <translation>--%1 不接受值。</translation>
    </message>
    <message>
        <source>--%1 needs a value.</source>
        <translation>--%1 需要一个值。</translation>
    </message>
    <message>
        <source>--%1 cannot be combined with --project, which has its own.</source>
        <translation>--%1 不能与 --project 一起使用，后者有自己的值。</translation>
    </message>
    <message>
        <source>--photos or --project is needed.</source>
        <translation>需要 --photos 或 --project。</translation>
    </message>
    <message>
        <source>--output is needed.</source>
        <translation>需要 --output。</translation>
    </message>
    <message>
        <source>--stretch and --original-size exclude each other.</source>
        <translation>--stretch 和 --original-size 不能同时使用。</translation>
    </message>
</context>
<context>
    <name>velmora::MakeProject</name>
    <message>
        <source>The project "%1" cannot be used: %2</source>
        <translation>无法使用项目“%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::MediaFileInfo</name>
    <message>
        <source>There is neither sound nor video in it.</source>
        <translation>其中既没有声音也没有视频。</translation>
    </message>
</context>
<context>
    <name>velmora::MediaInput</name>
    <message>
        <source>The file does not exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>It is damaged, or not a media file.</source>
        <translation>文件已损坏，或不是媒体文件。</translation>
    </message>
    <message>
        <source>It is a play list, not a media file.</source>
        <translation>这是播放列表，不是媒体文件。</translation>
    </message>
</context>
<context>
    <name>velmora::MessageDialog</name>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>velmora::MultipartUploader</name>
    <message>
        <source>can't open source file for reading</source>
        <translation>无法打开源文件进行读取</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>未知错误</translation>
    </message>
    <message>
        <source>Error uploading video:%1</source>
        <translation>上传视频时出错:%1</translation>
    </message>
</context>
<context>
    <name>velmora::OutputTarget</name>
    <message>
        <source>The project does not name a video file to write.</source>
        <translation>项目没有指明要写入的视频文件。</translation>
    </message>
    <message>
        <source>The finished video could not be put in place as "%1": %2.</source>
        <translation>无法将完成的视频放到“%1”: %2。</translation>
    </message>
    <message>
        <source>The video was kept as "%1".</source>
        <translation>视频已保留为“%1”。</translation>
    </message>
    <message>
        <source>The video's name "%1..." is too long. Please choose a shorter one.</source>
        <translation>视频名称“%1...”太长。请选择较短的名称。</translation>
    </message>
    <message>
        <source>The folder "%1" for the video does not exist.</source>
        <translation>视频的文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": it is not a folder.</source>
        <translation>无法将视频写入“%1”: 它不是文件夹。</translation>
    </message>
    <message>
        <source>The video cannot be written as "%1": a folder has that name.</source>
        <translation>无法将视频写为“%1”: 已有同名文件夹。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": the disk is full.</source>
        <translation>无法将视频写入“%1”: 磁盘已满。</translation>
    </message>
    <message>
        <source>The video cannot be written into "%1": %2.</source>
        <translation>无法将视频写入“%1”: %2。</translation>
    </message>
    <message>
        <source>Another render is writing "%1" at this time.</source>
        <translation>另一个任务正在写入“%1”。</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImporter</name>
    <message>
        <source>does not exist</source>
        <translation>不存在</translation>
    </message>
    <message>
        <source>is not a photo</source>
        <translation>不是照片</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>不含照片</translation>
    </message>
</context>
<context>
    <name>velmora::PhotoImports</name>
    <message numerus="yes">
        <source>Adding photos: %n looked at</source>
        <translation><numerusform>正在添加照片: 已检查 %n 张</numerusform></translation>
    </message>
    <message>
        <source>Adding photos</source>
        <translation>正在添加照片</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files have not been added</source>
        <translation><numerusform>有 %n 个文件未添加</numerusform></translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>velmora::PositionPicker</name>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top centre</source>
        <translation>中上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Centre left</source>
        <translation>左中</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Centre right</source>
        <translation>右中</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom centre</source>
        <translation>中下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
</context>
<context>
    <name>velmora::ProgressText</name>
    <message>
        <source>%1 elapsed</source>
        <translation>已用 %1</translation>
    </message>
    <message>
        <source>%1 elapsed, %2 left</source>
        <translation>已用 %1，剩余 %2</translation>
    </message>
    <message>
        <source>%1 %, %2</source>
        <translation>%1 %，%2</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectEditor</name>
    <message>
        <source>Add photos</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>删除幻灯片</translation>
    </message>
    <message>
        <source>Hide the title slide</source>
        <translation>隐藏标题幻灯片</translation>
    </message>
    <message>
        <source>Move slides</source>
        <translation>移动幻灯片</translation>
    </message>
    <message>
        <source>Change time</source>
        <translation>更改时间</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>更改切换效果</translation>
    </message>
    <message>
        <source>Rotate photos</source>
        <translation>旋转照片</translation>
    </message>
    <message>
        <source>Change caption</source>
        <translation>更改文字</translation>
    </message>
    <message>
        <source>Change caption style</source>
        <translation>更改文字样式</translation>
    </message>
    <message>
        <source>Change title slide</source>
        <translation>更改标题幻灯片</translation>
    </message>
    <message>
        <source>Add audio</source>
        <translation>添加音频</translation>
    </message>
    <message>
        <source>Delete audio</source>
        <translation>删除音频</translation>
    </message>
    <message>
        <source>Move audio</source>
        <translation>移动音频</translation>
    </message>
    <message>
        <source>Change audio offset</source>
        <translation>更改音频偏移</translation>
    </message>
    <message>
        <source>Change audio fade</source>
        <translation>更改音频淡入淡出</translation>
    </message>
    <message>
        <source>Loop audio</source>
        <translation>循环音频</translation>
    </message>
    <message>
        <source>Change resolution</source>
        <translation>更改分辨率</translation>
    </message>
    <message>
        <source>Change format</source>
        <translation>更改格式</translation>
    </message>
    <message>
        <source>Original ratio</source>
        <translation>原始比例</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>适应画面</translation>
    </message>
    <message>
        <source>Change transition duration</source>
        <translation>更改切换时间</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>排序照片</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>随机排列照片</translation>
    </message>
    <message>
        <source>Relocate photos</source>
        <translation>重新定位照片</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectFile</name>
    <message>
        <source>New project</source>
        <translation>新项目</translation>
    </message>
    <message>
        <source>The file is not a valid JSON document: %1.</source>
        <translation>文件不是有效的 JSON 文档: %1。</translation>
    </message>
    <message>
        <source>The file is not a project document.</source>
        <translation>文件不是项目文档。</translation>
    </message>
    <message>
        <source>The project document cannot be used, faulty field: %1.</source>
        <translation>无法使用项目文档，错误的字段: %1。</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectItemFirst</name>
    <message>
        <source>My slideshow</source>
        <translation>我的幻灯片放映</translation>
    </message>
    <message>
        <source>Starter</source>
        <translation>片头</translation>
    </message>
</context>
<context>
    <name>velmora::ProjectResume</name>
    <message>
        <source>Not all files exist</source>
        <translation>并非所有文件都存在</translation>
    </message>
    <message>
        <source>Not all files exist, do you want to resume the project?</source>
        <translation>并非所有文件都存在，要继续该项目吗？</translation>
    </message>
    <message>
        <source>CANCEL</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>RESUME</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>velmora::RenderFailure</name>
    <message>
        <source>The disk that holds the folder "%1" is full.</source>
        <translation>文件夹“%1”所在的磁盘已满。</translation>
    </message>
    <message>
        <source>The photo "%1" %2.</source>
        <translation>照片“%1”%2。</translation>
    </message>
    <message>
        <source>The sound file "%1" cannot be used: %2</source>
        <translation>无法使用音频文件“%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::RenderJob</name>
    <message>
        <source>The slideshow has no slides.</source>
        <translation>幻灯片放映中没有幻灯片。</translation>
    </message>
    <message>
        <source>A video of %1x%2 pixels is too small; each side needs at least %3.</source>
        <translation>%1x%2 像素的视频太小；每边至少需要 %3。</translation>
    </message>
</context>
<context>
    <name>velmora::RenderReport</name>
    <message>
        <source>Cancelled. No video was written.</source>
        <translation>已取消。没有写入视频。</translation>
    </message>
    <message>
        <source>The video is ready: %1</source>
        <translation>视频已完成: %1</translation>
    </message>
    <message>
        <source>The project is ready: %1</source>
        <translation>项目已完成: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SetNameDialog</name>
    <message>
        <source>Set video title</source>
        <translation>设置视频标题</translation>
    </message>
</context>
<context>
    <name>velmora::SettingsWidget</name>
    <message>
        <source>Original quality</source>
        <translation>原始质量</translation>
    </message>
    <message>
        <source>Plays everywhere</source>
        <translation>随处可播</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>version %1 - %2</source>
        <translation>版本 %1 - %2</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>The settings hold until the program ends, because they cannot be written to the file %1.</source>
        <translation>由于无法写入文件 %1，这些设置仅在程序关闭之前有效。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideActions</name>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Rotate photo</source>
        <translation>旋转照片</translation>
    </message>
    <message>
        <source>Rotate photo to the left</source>
        <translation>向左旋转照片</translation>
    </message>
    <message>
        <source>Shuffle photos</source>
        <translation>随机排列照片</translation>
    </message>
    <message>
        <source>Sort photos by name</source>
        <translation>按名称排序照片</translation>
    </message>
    <message>
        <source>Sort photos by date taken</source>
        <translation>按拍摄日期排序照片</translation>
    </message>
    <message>
        <source>Edit text</source>
        <translation>编辑文字</translation>
    </message>
    <message>
        <source>Edit text style of all slides</source>
        <translation>编辑所有幻灯片的文字样式</translation>
    </message>
    <message>
        <source>Set time</source>
        <translation>设置时间</translation>
    </message>
    <message>
        <source>Set transition</source>
        <translation>设置切换效果</translation>
    </message>
    <message>
        <source>Preview transition</source>
        <translation>预览切换效果</translation>
    </message>
    <message>
        <source>Relocate...</source>
        <translation>重新定位 ...</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>重新显示标题幻灯片</translation>
    </message>
    <message>
        <source>Delete slides</source>
        <translation>删除幻灯片</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>an action and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>velmora::SlidePictures</name>
    <message>
        <source>The photo '%1' cannot be read.</source>
        <translation>无法读取照片“%1”。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideSorter</name>
    <message>
        <source>Reading the dates of the photos</source>
        <translation>正在读取照片的日期</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTable</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>将照片和文件夹拖放到这里添加</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTableModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>切换效果</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>The title slide is not part of the video.</source>
        <translation>标题幻灯片不是视频的一部分。</translation>
    </message>
    <message>
        <source>The photo %1 does not exist any more.</source>
        <translation>照片 %1 已不存在。</translation>
    </message>
</context>
<context>
    <name>velmora::SlideTextDelegate</name>
    <message>
        <source>Relocate...</source>
        <translation>重新定位 ...</translation>
    </message>
    <message>
        <source>Edit the text of this slide (F2)</source>
        <translation>编辑此幻灯片的文字 (F2)</translation>
    </message>
    <message>
        <source>Delete this slide (Del)</source>
        <translation>删除此幻灯片 (Del)</translation>
    </message>
    <message>
        <source>Show the title slide again</source>
        <translation>重新显示标题幻灯片</translation>
    </message>
    <message>
        <source>Choose the file again</source>
        <translation>重新选择文件</translation>
    </message>
    <message>
        <source>Not part of the video</source>
        <translation>不是视频的一部分</translation>
    </message>
    <message>
        <source>Title slide</source>
        <translation>标题幻灯片</translation>
    </message>
    <message>
        <source>Missing: %1</source>
        <translation>缺失: %1</translation>
    </message>
</context>
<context>
    <name>velmora::SlidesPage</name>
    <message>
        <source>Drag &amp; drop photos and folders to add them here</source>
        <translation>将照片和文件夹拖放到这里添加</translation>
    </message>
    <message>
        <source>Sort photos</source>
        <translation>排序照片</translation>
    </message>
    <message>
        <source>Clear list (%1)</source>
        <translation>清空列表 (%1)</translation>
    </message>
    <message>
        <source>Various</source>
        <translation>多种</translation>
    </message>
    <message>
        <source>Total: %1</source>
        <translation>总计: %1</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>%1 在哪里？</translation>
    </message>
    <message>
        <source>Photos: %1</source>
        <translation>照片: %1</translation>
    </message>
    <message>
        <source>Running time: %1</source>
        <translation>播放时长: %1</translation>
    </message>
    <message>
        <source>Audio files: %1</source>
        <translation>音频文件: %1</translation>
    </message>
    <message>
        <source>Resolution: %1</source>
        <translation>分辨率: %1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>CLOSE</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>velmora::SoundChecker</name>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>其中没有可以播放的内容。</translation>
    </message>
</context>
<context>
    <name>velmora::SoundTrack</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>无法读取音乐文件“%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::Spinner</name>
    <message>
        <source>Preparing the preview</source>
        <translation>正在准备预览</translation>
    </message>
</context>
<context>
    <name>velmora::SplashScreen</name>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
</context>
<context>
    <name>velmora::StartPage</name>
    <message>
        <source>Drop your photos here</source>
        <translation>将照片拖放到这里</translation>
    </message>
    <message>
        <source>Photos and whole folders become a slideshow with transitions, titles and music.</source>
        <translation>照片和整个文件夹会变成带有切换效果、标题和音乐的幻灯片放映。</translation>
    </message>
    <message>
        <source>Add Photo</source>
        <translation>添加照片</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Open a slideshow</source>
        <translation>打开幻灯片放映</translation>
    </message>
    <message>
        <source>Try the sample photos</source>
        <translation>试用示例照片</translation>
    </message>
    <message>
        <source>Continue with %1</source>
        <translation>继续 %1</translation>
    </message>
    <message>
        <source>Open the last slideshow again</source>
        <translation>再次打开上一个幻灯片放映</translation>
    </message>
    <message>
        <source>Open a saved slideshow</source>
        <translation>打开已保存的幻灯片放映</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>将照片添加到幻灯片放映</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>添加文件夹中的所有照片</translation>
    </message>
    <message>
        <source>Begin a slideshow with the photos that come with the program</source>
        <translation>用程序附带的照片开始幻灯片放映</translation>
    </message>
</context>
<context>
    <name>velmora::TextEditWidget</name>
    <message>
        <source>Edit style for 'Starter' slide</source>
        <translation>编辑“片头”幻灯片的样式</translation>
    </message>
    <message>
        <source>Edit style for All slides</source>
        <translation>编辑所有幻灯片的样式</translation>
    </message>
    <message>
        <source>Edit style for '%1' slide</source>
        <translation>编辑“%1”幻灯片的样式</translation>
    </message>
    <message>
        <source>Text here</source>
        <translation>在此输入文字</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>The changes of this text have not been saved. Discard them?</source>
        <translation>此文字的更改尚未保存。要放弃吗？</translation>
    </message>
    <message>
        <source>DISCARD</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>KEEP EDITING</source>
        <translation>继续编辑</translation>
    </message>
</context>
<context>
    <name>velmora::TitleBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRow</name>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Back to the slideshow</source>
        <translation>返回幻灯片放映</translation>
    </message>
    <message>
        <source>Add photos to the slideshow</source>
        <translation>将照片添加到幻灯片放映</translation>
    </message>
    <message>
        <source>Add all photos of a folder</source>
        <translation>添加文件夹中的所有照片</translation>
    </message>
    <message>
        <source>Show the slideshows made so far</source>
        <translation>显示至今制作的幻灯片放映</translation>
    </message>
    <message>
        <source>Change how new slideshows begin</source>
        <translation>更改新幻灯片放映的初始设置</translation>
    </message>
    <message>
        <source>Help and keyboard shortcuts</source>
        <translation>帮助和键盘快捷键</translation>
    </message>
    <message>
        <source>Last slideshow: %1</source>
        <translation>上一个幻灯片放映: %1</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
</context>
<context>
    <name>velmora::ToolRunner</name>
    <message>
        <source>It could not be started.</source>
        <translation>无法启动。</translation>
    </message>
    <message>
        <source>It ended unexpectedly.</source>
        <translation>意外结束。</translation>
    </message>
    <message>
        <source>It ended with code %1.</source>
        <translation>以代码 %1 结束。</translation>
    </message>
</context>
<context>
    <name>velmora::UpdateDialog</name>
    <message>
        <source>Update available!</source>
        <translation>有可用更新！</translation>
    </message>
    <message>
        <source>New version of the programm is avalible:</source>
        <translation>程序有新版本可用:</translation>
    </message>
    <message>
        <source>Read about</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>new feauters</source>
        <translation>新功能</translation>
    </message>
</context>
<context>
    <name>velmora::UploadController</name>
    <message>
        <source>Uploading to %1 is not configured. The addresses and the registration of the service belong into the file '%2'.</source>
        <translation>未配置上传到 %1。服务的地址和注册信息应写入文件“%2”。</translation>
    </message>
</context>
<context>
    <name>velmora::UploadServiceMenu</name>
    <message>
        <source>Services</source>
        <translation>服务</translation>
    </message>
</context>
<context>
    <name>velmora::UploadSuccessWindow</name>
    <message>
        <source>Shows the file in the browser</source>
        <translation>在浏览器中显示文件</translation>
    </message>
</context>
<context>
    <name>velmora::VideoPlayerWidget</name>
    <message>
        <source>Add photos to see the slideshow here</source>
        <translation>添加照片后可在此查看幻灯片放映</translation>
    </message>
    <message>
        <source>Preview transition to slide %1</source>
        <translation>预览到幻灯片 %1 的切换效果</translation>
    </message>
    <message>
        <source>Full preview</source>
        <translation>完整预览</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>暂停 (空格)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Sound on (M)</source>
        <translation>打开声音 (M)</translation>
    </message>
    <message>
        <source>Mute (M)</source>
        <translation>静音 (M)</translation>
    </message>
</context>
<context>
    <name>velmora::VideoUtil</name>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>The encoder failed: %1</source>
        <translation>编码器失败: %1</translation>
    </message>
    <message>
        <source>The encoder wrote nothing to %1.</source>
        <translation>编码器没有向 %1 写入任何内容。</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>There are no frames to encode.</source>
        <translation>没有要编码的画面。</translation>
    </message>
    <message>
        <source>The part %1 of the video is missing.</source>
        <translation>视频的部分 %1 缺失。</translation>
    </message>
    <message>
        <source>The program "transcoder" is missing beside this program.</source>
        <translation>此程序旁缺少程序“transcoder”。</translation>
    </message>
</context>
<context>
    <name>velmora::WavTranscoder</name>
    <message>
        <source>The music file '%1' cannot be read: %2</source>
        <translation>无法读取音乐文件“%1”: %2</translation>
    </message>
    <message>
        <source>The file '%1' cannot be written: %2</source>
        <translation>无法写入文件“%1”: %2</translation>
    </message>
    <message>
        <source>Nothing in it can be played.</source>
        <translation>其中没有可以播放的内容。</translation>
    </message>
</context>
<context>
    <name>velmora::WavWriter</name>
    <message>
        <source>The older file of that name cannot be replaced.</source>
        <translation>无法替换同名的旧文件。</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
</context>
<context>
    <name>velmora::WebLoginDialog</name>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign-in page of the service</source>
        <translation>服务的登录页面</translation>
    </message>
    <message>
        <source>Authorization error</source>
        <translation>授权错误</translation>
    </message>
</context>
<context>
    <name>velmora::WorkerMain</name>
    <message>
        <source>A render worker needs --session_id, --cache and --request, and nothing else.</source>
        <translation>渲染进程只需要 --session_id、--cache 和 --request。</translation>
    </message>
    <message>
        <source>The request "%1" cannot be used: %2</source>
        <translation>无法使用请求“%1”: %2</translation>
    </message>
</context>
<context>
    <name>velmora::UploaderFactory</name>
    <message>
        <source>This copy of the program cannot upload videos: it was built without the component that signs in to services (Qt NetworkAuth).</source>
        <translation>此程序副本无法上传视频：构建时未包含用于登录服务的组件（Qt NetworkAuth）。</translation>
    </message>
</context>
<context>
    <name>velmora::DiscWriter</name>
    <message>
        <source>This copy of the program cannot burn discs on this system.</source>
        <translation>此程序副本无法在此系统上刻录光盘。</translation>
    </message>
</context>
</TS>