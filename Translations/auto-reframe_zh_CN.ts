<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About Auto Reframe</source>
        <translation>关于 Auto Reframe</translation>
    </message>
    <message>
        <source>Auto Reframe %1</source>
        <translation>Auto Reframe %1</translation>
    </message>
    <message>
        <source>Keeps the subject of a video in the picture. Everything runs on this computer.</source>
        <translation>让视频的主体保持在画面中。一切都在本机上运行。</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>AnalysisPlot</name>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>The crop&apos;s path over the evidence</source>
        <translation>裁剪框在线索图上的轨迹</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>各信号的线索</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>强</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>AnalysisReport</name>
    <message>
        <source>1 frame</source>
        <translation>1 帧</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n 帧</numerusform>
        </translation>
    </message>
    <message>
        <source>The crop</source>
        <translation>裁剪框</translation>
    </message>
    <message>
        <source>Frames of the video with the crop drawn</source>
        <translation>画有裁剪框的视频帧</translation>
    </message>
    <message>
        <source>Path of the crop</source>
        <translation>裁剪框的轨迹</translation>
    </message>
    <message>
        <source>Time runs from left to right. The left of the picture is at the bottom, its right at the top. A brighter spot has more evidence.</source>
        <translation>时间从左到右。画面左侧在下方，右侧在上方。越亮的位置线索越多。</translation>
    </message>
    <message>
        <source>Time runs from left to right. The bottom of the picture is at the bottom, its top at the top. A brighter spot has more evidence.</source>
        <translation>时间从左到右。画面底部在下方，顶部在上方。越亮的位置线索越多。</translation>
    </message>
    <message>
        <source>centre of the crop</source>
        <translation>裁剪框的中心</translation>
    </message>
    <message>
        <source>edges of the crop</source>
        <translation>裁剪框的边缘</translation>
    </message>
    <message>
        <source>centre with the most evidence</source>
        <translation>线索最多的中心</translation>
    </message>
    <message>
        <source>start of a shot, numbered above</source>
        <translation>镜头的开始，编号在上方</translation>
    </message>
    <message>
        <source>Evidence by signal</source>
        <translation>各信号的线索</translation>
    </message>
    <message>
        <source>How much stronger each signal is at the centre with the most evidence than at an average place.</source>
        <translation>与平均位置相比，各信号在线索最多的中心处强多少。</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the width of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>移动量是该镜头中裁剪框所有移动的总和，以画面宽度的百分比表示。当裁剪框外的线索与框内一样强，或有信号指向别处时，置信度会降低；如果偏低，请查看该镜头。</translation>
    </message>
    <message>
        <source>Travel is the sum of all movements of the crop in the shot, in percent of the height of the picture. Confidence falls if the evidence outside of the crop is as strong as inside, or if single signals want the crop elsewhere; where it is low, look at the shot.</source>
        <translation>移动量是该镜头中裁剪框所有移动的总和，以画面高度的百分比表示。当裁剪框外的线索与框内一样强，或有信号指向别处时，置信度会降低；如果偏低，请查看该镜头。</translation>
    </message>
    <message>
        <source>Shot</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>第一帧</translation>
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
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Dominant signal</source>
        <translation>主要信号</translation>
    </message>
    <message>
        <source>Travel of the crop</source>
        <translation>裁剪框移动量</translation>
    </message>
    <message>
        <source>Confidence</source>
        <translation>置信度</translation>
    </message>
    <message>
        <source>%1 at %2:%3</source>
        <translation>%1（%2:%3）</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>每秒帧数</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪框</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>none: the crop is centred</source>
        <translation>无：裁剪框居中</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1，%2%</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>AutoReframeOptions</name>
    <message>
        <source>%1
Try auto-reframe --help.</source>
        <translation>%1
请参阅 auto-reframe --help。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>显示此文本。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>Turns videos into another aspect ratio and keeps their subject in the picture.
The command line program for many files at once is reframe.</source>
        <translation>将视频转换为其他宽高比，并让主体保持在画面中。
一次处理多个文件的命令行程序是 reframe。</translation>
    </message>
    <message>
        <source>Videos to open the library with.</source>
        <translation>打开媒体库时载入的视频。</translation>
    </message>
    <message>
        <source>Language of the texts: %1. Otherwise the one chosen in the menu, or that of the system.</source>
        <translation>文本的语言：%1。默认为菜单中选择的语言或系统语言。</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Shorts, Reels, Stories</source>
        <translation>短视频、Reels、快拍</translation>
    </message>
    <message>
        <source>Feed, portrait</source>
        <translation>信息流，竖版</translation>
    </message>
    <message>
        <source>Feed, square</source>
        <translation>信息流，方形</translation>
    </message>
    <message>
        <source>Cinema</source>
        <translation>电影</translation>
    </message>
    <message>
        <source>Widescreen</source>
        <translation>宽屏</translation>
    </message>
    <message>
        <source>Classic television</source>
        <translation>传统电视</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>As large as the crop</source>
        <translation>与裁剪框一样大</translation>
    </message>
    <message>
        <source>Shorter side %1 pixels</source>
        <translation>短边 %1 像素</translation>
    </message>
    <message>
        <source>Choose an aspect ratio.</source>
        <translation>请选择宽高比。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>请选择文件夹。</translation>
    </message>
    <message>
        <source>The selected videos have this aspect ratio already.</source>
        <translation>所选视频已经是此宽高比。</translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n 个文件：%1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>重新构图 %n 个视频</numerusform>
        </translation>
    </message>
    <message>
        <source>Aspect Ratios</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>运动速度</translation>
    </message>
    <message>
        <source>How readily the crop follows the subject</source>
        <translation>裁剪框跟随主体的快慢</translation>
    </message>
    <message>
        <source>Output Size</source>
        <translation>输出大小</translation>
    </message>
    <message>
        <source>The size of the exported videos</source>
        <translation>导出视频的大小</translation>
    </message>
    <message>
        <source>File Name, with %1</source>
        <translation>文件名，可用 %1</translation>
    </message>
    <message>
        <source>What stands in braces is replaced for each file.</source>
        <translation>花括号中的内容会按每个文件替换。</translation>
    </message>
    <message>
        <source>The folder for the exported videos</source>
        <translation>导出视频的文件夹</translation>
    </message>
    <message>
        <source>Reframe All</source>
        <translation>全部重新构图</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>高 %1 像素</translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n 个文件（放大超过裁剪框）：%1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>无法对 %1 重新构图：%2。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>无法对 %1 重新构图：没有视频画面。</translation>
    </message>
    <message>
        <source>Cannot use %1: it has the crops of %2 frames, and %3 has %4 frames.</source>
        <translation>无法使用 %1：其中有 %2 帧的裁剪框，而 %3 有 %4 帧。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2 already.</source>
        <translation>无法对 %1 重新构图：宽高比已经是 %2。</translation>
    </message>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>无法对 %1 重新构图：只有 %n 帧，需要 %2 帧。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropRenderSettings</name>
    <message>
        <source>its picture of %1 x %2 pixels is too small</source>
        <translation>%1 x %2 像素的画面太小</translation>
    </message>
</context>
<context>
    <name>CropTrackDialog</name>
    <message>
        <source>Enter a file name.</source>
        <translation>请输入文件名。</translation>
    </message>
    <message>
        <source>Choose a folder.</source>
        <translation>请选择文件夹。</translation>
    </message>
    <message>
        <source>Save Crop Track</source>
        <translation>保存裁剪轨迹</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>The file gets a number if there is one of this name</source>
        <translation>如有同名文件，文件名会加上编号</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>The command line reads both</source>
        <translation>命令行程序可读取这两种格式</translation>
    </message>
    <message>
        <source>The folder for the crop track</source>
        <translation>裁剪轨迹的文件夹</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Export for %1</source>
        <translation>导出供 %1 使用</translation>
    </message>
    <message>
        <source>The folder for the project or the keyframes</source>
        <translation>项目或关键帧的文件夹</translation>
    </message>
</context>
<context>
    <name>CropTrackFile</name>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot use %1: it is too large for a crop track of a video of %2 frames.</source>
        <translation>无法使用 %1：对于 %2 帧的视频，此裁剪轨迹太大。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds no frames.</source>
        <translation>无法使用 %1：其中没有任何帧。</translation>
    </message>
</context>
<context>
    <name>CropTrackParser</name>
    <message>
        <source>Cannot use %1: it is no crop track (line %2).</source>
        <translation>无法使用 %1：不是裁剪轨迹（第 %2 行）。</translation>
    </message>
    <message>
        <source>Cannot use %1: frame %2 is no rectangle inside the picture.</source>
        <translation>无法使用 %1：第 %2 帧不是画面内的矩形。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds more frames than the video, which has %2.</source>
        <translation>无法使用 %1：其中的帧数超过视频的 %2 帧。</translation>
    </message>
    <message>
        <source>Cannot use %1: it is a crop track of version %2, and this program reads version 1.</source>
        <translation>无法使用 %1：这是版本 %2 的裁剪轨迹，本程序只能读取版本 1。</translation>
    </message>
</context>
<context>
    <name>CropWait</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analyzing %1</source>
        <translation>正在分析 %1</translation>
    </message>
</context>
<context>
    <name>DialogEdits</name>
    <message>
        <source>As large as the crop</source>
        <translation>与裁剪框一样大</translation>
    </message>
    <message>
        <source>%1 pixels high</source>
        <translation>高 %1 像素</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
</context>
<context>
    <name>ExportCard</name>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n 个待查看</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress of %1</source>
        <translation>%1 的进度</translation>
    </message>
    <message>
        <source>Cancel %1</source>
        <translation>取消 %1</translation>
    </message>
    <message>
        <source>Retry %1</source>
        <translation>重试 %1</translation>
    </message>
    <message>
        <source>Look at the doubtful shots of %1</source>
        <translation>查看 %1 中存疑的镜头</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>在文件夹中显示 %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Paused · %1</source>
        <translation>已暂停 · %1</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Analyzing · %1</source>
        <translation>正在分析 · %1</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Done · %1</source>
        <translation>完成 · %1</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Not finished</source>
        <translation>未完成</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Export it again</source>
        <translation>重新导出</translation>
    </message>
    <message>
        <source>Show the file in its folder</source>
        <translation>在文件夹中显示该文件</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Opens the video at these settings and its first doubtful shot; N leads to the next one.</source>
        <translation>以这些设置打开视频并转到第一个存疑镜头；按 N 键转到下一个。</translation>
    </message>
</context>
<context>
    <name>ExportForMenu</name>
    <message>
        <source>Export for</source>
        <translation>导出供其他程序使用</translation>
    </message>
    <message>
        <source>%1 (.%2)…</source>
        <translation>%1 (.%2)…</translation>
    </message>
</context>
<context>
    <name>ExportManners</name>
    <message>
        <source>Exported %1</source>
        <translation>已导出 %1</translation>
    </message>
    <message>
        <source>Cannot export %1</source>
        <translation>无法导出 %1</translation>
    </message>
    <message>
        <source>Videos are being exported</source>
        <translation>正在导出视频</translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message>
        <source>Exports</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Clear finished</source>
        <translation>清除已完成</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Remove the finished exports from the list; their files stay</source>
        <translation>从列表中移除已完成的导出；文件会保留</translation>
    </message>
    <message>
        <source>Export those that the last run did not finish</source>
        <translation>导出上次未完成的内容</translation>
    </message>
    <message>
        <source>Remove those that the last run did not finish from the list</source>
        <translation>从列表中移除上次未完成的内容</translation>
    </message>
    <message>
        <source>Videos that you export from the Auto Reframe window appear here.</source>
        <translation>从 Auto Reframe 窗口导出的视频会显示在这里。</translation>
    </message>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>%n 个导出未完成</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportRecord</name>
    <message>
        <source>Cannot export: no name or no folder was given.</source>
        <translation>无法导出：未指定名称或文件夹。</translation>
    </message>
    <message>
        <source>Cannot export %1: no picture size was given.</source>
        <translation>无法导出 %1：未指定画面大小。</translation>
    </message>
</context>
<context>
    <name>FarmOptions</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot read the folder %1.</source>
        <translation>无法读取文件夹 %1。</translation>
    </message>
    <message>
        <source>Of a folder that is an input, take the videos in its subfolders too.</source>
        <translation>如果输入是文件夹，也处理其子文件夹中的视频。</translation>
    </message>
    <message>
        <source>Read more inputs from FILE, one a line; - is standard input.</source>
        <translation>从 FILE 读取更多输入，每行一个；- 表示标准输入。</translation>
    </message>
    <message>
        <source>Write progress and results to FILE as JSON lines, whatever is printed.</source>
        <translation>无论显示什么，都将进度和结果以 JSON 行写入 FILE。</translation>
    </message>
    <message>
        <source>Skip inputs whose results are there already, from the same content, settings and version; replace results of other settings.</source>
        <translation>跳过已有结果（内容、设置和版本相同）的输入；替换其他设置的结果。</translation>
    </message>
    <message>
        <source>Only the frames A to B, counted from 0, or the part K of N: with --apply, render them without sound; otherwise write the pictures that the analysis takes of them (.pictures).</source>
        <translation>仅处理第 A 到 B 帧（从 0 开始计数），或 N 份中的第 K 份：使用 --apply 时渲染这些帧（无声音），否则写出分析所用的图像 (.pictures)。</translation>
    </message>
    <message>
        <source>The first input is a video, the others are all its parts, as --frames wrote them; the results are those of the whole video.</source>
        <translation>第一个输入是视频，其余是 --frames 写出的该视频的全部分段；结果即整个视频的结果。</translation>
    </message>
</context>
<context>
    <name>FollowOption</name>
    <message>
        <source>the video ends after %1 s</source>
        <translation>视频在 %1 秒后结束</translation>
    </message>
    <message>
        <source>it lies outside the picture of %1x%2 pixels</source>
        <translation>位于 %1x%2 像素的画面之外</translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message>
        <source>motion</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>movers</source>
        <translation>移动物</translation>
    </message>
    <message>
        <source>saliency</source>
        <translation>显著性</translation>
    </message>
    <message>
        <source>faces</source>
        <translation>人脸</translation>
    </message>
    <message>
        <source>detected</source>
        <translation>检测</translation>
    </message>
    <message>
        <source>motion: what the camera&apos;s own movement does not explain</source>
        <translation>运动：摄像机自身移动无法解释的部分</translation>
    </message>
    <message>
        <source>movers: what travels through the shot, however small</source>
        <translation>移动物：穿过镜头的物体，无论多小</translation>
    </message>
    <message>
        <source>saliency: what stands out in a still picture</source>
        <translation>显著性：静止画面中突出的部分</translation>
    </message>
    <message>
        <source>detected: people and animals</source>
        <translation>检测：人和动物</translation>
    </message>
    <message>
        <source>it is not clear who speaks</source>
        <translation>不清楚谁在说话</translation>
    </message>
    <message>
        <source>who speaks is hardly clear</source>
        <translation>不太清楚谁在说话</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>没有突出的内容</translation>
    </message>
    <message>
        <source>people or animals are in several places</source>
        <translation>人或动物在多个位置</translation>
    </message>
    <message>
        <source>what stands out is in several places</source>
        <translation>突出的内容在多个位置</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>holds who speaks</source>
        <translation>保持在说话者上</translation>
    </message>
    <message>
        <source>follows who speaks</source>
        <translation>跟随说话者</translation>
    </message>
    <message>
        <source>follows who speaks, with 1 cut</source>
        <translation>跟随说话者，1 次切换</translation>
    </message>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>跟随说话者，%n 次切换</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FramesOption</name>
    <message>
        <source>its last frame is %1</source>
        <translation>其最后一帧是 %1</translation>
    </message>
    <message>
        <source>it has %1 frames only</source>
        <translation>它只有 %1 帧</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Import videos</source>
        <translation>导入视频</translation>
    </message>
    <message>
        <source>Select all videos</source>
        <translation>选择所有视频</translation>
    </message>
    <message>
        <source>Select several videos</source>
        <translation>选择多个视频</translation>
    </message>
    <message>
        <source>Ctrl+Click, Shift+Click</source>
        <translation>Ctrl+单击、Shift+单击</translation>
    </message>
    <message>
        <source>Reframe the selected video</source>
        <translation>对所选视频重新构图</translation>
    </message>
    <message>
        <source>Reframe all selected videos</source>
        <translation>对所有所选视频重新构图</translation>
    </message>
    <message>
        <source>Remove from the library</source>
        <translation>从媒体库中移除</translation>
    </message>
    <message>
        <source>Show this list</source>
        <translation>显示此列表</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Play, pause</source>
        <translation>播放、暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Previous edit point</source>
        <translation>上一个编辑点</translation>
    </message>
    <message>
        <source>Next edit point</source>
        <translation>下一个编辑点</translation>
    </message>
    <message>
        <source>Delete the edit point</source>
        <translation>删除编辑点</translation>
    </message>
    <message>
        <source>Previous doubtful shot</source>
        <translation>上一个存疑镜头</translation>
    </message>
    <message>
        <source>Next doubtful shot</source>
        <translation>下一个存疑镜头</translation>
    </message>
    <message>
        <source>Move the crop by a pixel</source>
        <translation>将裁剪框移动 1 像素</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Move the crop by 10 pixels</source>
        <translation>将裁剪框移动 10 像素</translation>
    </message>
    <message>
        <source>Shift+Arrow keys</source>
        <translation>Shift+方向键</translation>
    </message>
    <message>
        <source>Back to automatic in this shot</source>
        <translation>此镜头恢复自动</translation>
    </message>
    <message>
        <source>Point at the middle of the crop</source>
        <translation>指向裁剪框中心</translation>
    </message>
    <message>
        <source>Remove the box</source>
        <translation>移除选框</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>媒体库</translation>
    </message>
    <message>
        <source>Auto Reframe Window</source>
        <translation>Auto Reframe 窗口</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>HostMediaBackend</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>无法打开 %1：没有视频画面。</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Analysis error. Please try again.</source>
        <translation>分析出错。请重试。</translation>
    </message>
    <message>
        <source>This video is too short. Please try a different video.</source>
        <translation>此视频太短。请尝试其他视频。</translation>
    </message>
    <message>
        <source>You&apos;ve chosen the same aspect ratio as the original video. Please select a different aspect ratio.</source>
        <translation>所选宽高比与原视频相同。请选择其他宽高比。</translation>
    </message>
    <message>
        <source>Converting video. Please wait...</source>
        <translation>正在转换视频，请稍候...</translation>
    </message>
    <message>
        <source>Are you sure you want to exit?</source>
        <translation>确定要退出吗？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>All supported files(%1;);</source>
        <translation>所有支持的文件(%1;);</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Unknown error, please try again</source>
        <translation>未知错误，请重试</translation>
    </message>
</context>
<context>
    <name>KrAutoReframeExportDlg</name>
    <message>
        <source>Export to MP4</source>
        <translation>导出为 MP4</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Save to:</source>
        <translation>保存到：</translation>
    </message>
    <message>
        <source>Please make sure you have selected a valid folder.</source>
        <translation>请确保选择了有效的文件夹。</translation>
    </message>
    <message>
        <source>Please check write permission, or choose another path to continue.</source>
        <translation>请检查写入权限，或选择其他位置。</translation>
    </message>
    <message>
        <source>The outputted file path is too long, please choose another path to continue.</source>
        <translation>输出文件路径太长，请选择其他位置。</translation>
    </message>
    <message>
        <source>There is not enough space in the specified output directory, please choose another one.
Dise Space needed :%1 MB, remaining:%2 MB.</source>
        <translation>指定的输出文件夹空间不足，请选择其他文件夹。
所需空间：%1 MB，剩余：%2 MB。</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePlayerControlBar</name>
    <message>
        <source>Backward (%1)</source>
        <translation>后退 (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>前进 (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>停止 (%1)</translation>
    </message>
    <message>
        <source>Play (%1)</source>
        <translation>播放 (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>暂停 (%1)</translation>
    </message>
    <message>
        <source>Undo (%1)</source>
        <translation>撤销 (%1)</translation>
    </message>
    <message>
        <source>Redo (%1)</source>
        <translation>重做 (%1)</translation>
    </message>
    <message>
        <source>Delete (%1)</source>
        <translation>删除 (%1)</translation>
    </message>
    <message>
        <source>Previous Edit Point (%1)</source>
        <translation>上一个编辑点 (%1)</translation>
    </message>
    <message>
        <source>Next Edit Point (%1)</source>
        <translation>下一个编辑点 (%1)</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>慢</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>替换文件</translation>
    </message>
    <message>
        <source>Adjust Frame</source>
        <translation>调整画面</translation>
    </message>
    <message>
        <source>Aspect Ratio</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Motion Speed</source>
        <translation>运动速度</translation>
    </message>
    <message>
        <source>Analyze</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>重新分析</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
</context>
<context>
    <name>KrCropKeys</name>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>The arrow keys move the crop, with Shift in larger steps.</source>
        <translation>方向键移动裁剪框，按住 Shift 键步幅更大。</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message>
        <source>The crop follows your choice</source>
        <translation>裁剪框跟随您的选择</translation>
    </message>
    <message>
        <source>The crop avoids your choice</source>
        <translation>裁剪框避开您的选择</translation>
    </message>
    <message>
        <source>The crop is held</source>
        <translation>裁剪框保持不动</translation>
    </message>
    <message>
        <source>The whole picture is shown</source>
        <translation>显示整个画面</translation>
    </message>
    <message>
        <source>The analysis decides</source>
        <translation>由分析决定</translation>
    </message>
    <message>
        <source>Lost from %1: point again</source>
        <translation>从 %1 起丢失：请重新指定</translation>
    </message>
    <message>
        <source>Perhaps lost from %1: look, and point again</source>
        <translation>从 %1 起可能丢失：请查看并重新指定</translation>
    </message>
    <message>
        <source>Settings changed: analyze again</source>
        <translation>设置已更改：请重新分析</translation>
    </message>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n 个选择已保留，但不在此剪辑版本中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n 个选择已移到其画面所在的位置</numerusform>
        </translation>
    </message>
    <message>
        <source>Following: %1 %</source>
        <translation>正在跟随：%1%</translation>
    </message>
    <message>
        <source>Your edit stays here</source>
        <translation>此处保留您的编辑</translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message>
        <source>Previous Doubtful Shot (%1)</source>
        <translation>上一个存疑镜头 (%1)</translation>
    </message>
    <message>
        <source>Next Doubtful Shot (%1)</source>
        <translation>下一个存疑镜头 (%1)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%n 个镜头中 %1 个待查看</numerusform>
        </translation>
    </message>
    <message>
        <source>All doubtful shots seen</source>
        <translation>所有存疑镜头均已查看</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>镜头 %1 / %2</translation>
    </message>
    <message>
        <source>nothing stands out</source>
        <translation>没有突出的内容</translation>
    </message>
    <message>
        <source>what stands out is in several places, far apart</source>
        <translation>突出的内容在多个位置，相距较远</translation>
    </message>
    <message>
        <source>several people or animals, far apart</source>
        <translation>多个人或动物，相距较远</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>KrEditPictures</name>
    <message numerus="yes">
        <source>%n edit points are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n 个编辑点已保留，但不在此剪辑版本中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n 个编辑点已移到其画面所在的位置</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrExportStatus</name>
    <message>
        <source>Progress of the export</source>
        <translation>导出进度</translation>
    </message>
    <message>
        <source>The size of the exported video in pixels.</source>
        <translation>导出视频的像素大小。</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Opens the folder of the exported video.</source>
        <translation>打开导出视频所在的文件夹。</translation>
    </message>
    <message>
        <source>Output: %1 × %2</source>
        <translation>输出：%1 × %2</translation>
    </message>
    <message>
        <source>Waiting in the export queue</source>
        <translation>在导出队列中等待</translation>
    </message>
    <message>
        <source>Exporting: %1 %</source>
        <translation>正在导出：%1%</translation>
    </message>
    <message>
        <source>Exported</source>
        <translation>已导出</translation>
    </message>
    <message>
        <source>Export cancelled</source>
        <translation>导出已取消</translation>
    </message>
    <message>
        <source>Output: %1 × %2, enlarged</source>
        <translation>输出：%1 × %2（放大）</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>The size in which the video is exported.</source>
        <translation>导出视频的大小。</translation>
    </message>
</context>
<context>
    <name>KrFollowControls</name>
    <message>
        <source>This looks like background</source>
        <translation>这看起来像背景</translation>
    </message>
    <message>
        <source>Hold the Crop Here in This Shot</source>
        <translation>在此镜头中将裁剪框固定在这里</translation>
    </message>
    <message>
        <source>Follow This Anyway</source>
        <translation>仍然跟随它</translation>
    </message>
    <message>
        <source>Follow This</source>
        <translation>跟随它</translation>
    </message>
    <message>
        <source>Not This</source>
        <translation>不是它</translation>
    </message>
    <message>
        <source>Hold the Crop in This Shot</source>
        <translation>在此镜头中固定裁剪框</translation>
    </message>
    <message>
        <source>Show the Whole Picture in This Shot</source>
        <translation>在此镜头中显示整个画面</translation>
    </message>
    <message>
        <source>Back to Automatic</source>
        <translation>恢复自动</translation>
    </message>
</context>
<context>
    <name>KrMessageDialog</name>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>KrRatioComparison</name>
    <message>
        <source>Compare Aspect Ratios</source>
        <translation>比较宽高比</translation>
    </message>
</context>
<context>
    <name>KrRatioPane</name>
    <message>
        <source>Result in %1:%2</source>
        <translation>%1:%2 的结果</translation>
    </message>
    <message>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
    <message>
        <source>%1 · finding the crop…</source>
        <translation>%1 · 正在查找裁剪框…</translation>
    </message>
    <message>
        <source>%1 · %2 × %3</source>
        <translation>%1 · %2 × %3</translation>
    </message>
    <message>
        <source>%1 · analyze the video again</source>
        <translation>%1 · 请重新分析</translation>
    </message>
</context>
<context>
    <name>KrViewMenu</name>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Safe Zones</source>
        <translation>安全区域</translation>
    </message>
    <message>
        <source>Dims what players of vertical videos cover with texts and buttons. For 9:16 only.</source>
        <translation>将竖版视频播放器中被文字和按钮遮挡的部分变暗。仅适用于 9:16。</translation>
    </message>
    <message>
        <source>Thirds</source>
        <translation>三分线</translation>
    </message>
    <message>
        <source>A grid that divides the result into thirds.</source>
        <translation>将结果三等分的网格。</translation>
    </message>
    <message>
        <source>Headroom</source>
        <translation>头部空间</translation>
    </message>
    <message>
        <source>The band in which the top of a head belongs.</source>
        <translation>头顶应处于的区域。</translation>
    </message>
    <message>
        <source>Compare Aspect Ratios…</source>
        <translation>比较宽高比…</translation>
    </message>
    <message>
        <source>Shows the results of several aspect ratios side by side.</source>
        <translation>并排显示多个宽高比的结果。</translation>
    </message>
</context>
<context>
    <name>KxAacEncoder</name>
    <message>
        <source>the AAC encoder is missing</source>
        <translation>缺少 AAC 编码器</translation>
    </message>
    <message>
        <source>sound of %1 Hz and %2 channels is not supported</source>
        <translation>不支持 %1 Hz、%2 声道的声音</translation>
    </message>
    <message>
        <source>the sound encoder does not start (%1)</source>
        <translation>声音编码器无法启动（%1）</translation>
    </message>
</context>
<context>
    <name>KxAudioReader</name>
    <message>
        <source>it has no such sound track</source>
        <translation>没有该音轨</translation>
    </message>
</context>
<context>
    <name>KxAudioTrack</name>
    <message>
        <source>its sound format (%1) is not supported</source>
        <translation>不支持其声音格式（%1）</translation>
    </message>
    <message>
        <source>its sound is damaged</source>
        <translation>声音已损坏</translation>
    </message>
</context>
<context>
    <name>KxAutoReframeService</name>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>无法分析 %1：%2。</translation>
    </message>
    <message>
        <source>the stored choices</source>
        <translation>已保存的选择</translation>
    </message>
</context>
<context>
    <name>KxAvError</name>
    <message>
        <source>it was cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>it ends too early</source>
        <translation>提前结束</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>its format is not supported</source>
        <translation>不支持其格式</translation>
    </message>
</context>
<context>
    <name>KxCacheFolder</name>
    <message>
        <source>Cannot make the cache folder %1: %2.</source>
        <translation>无法创建缓存文件夹 %1：%2。</translation>
    </message>
</context>
<context>
    <name>KxChoicesFormat</name>
    <message>
        <source>Cannot use %1: %2.</source>
        <translation>无法使用 %1：%2。</translation>
    </message>
    <message>
        <source>choice %1 has no valid time (&quot;%2&quot;), in seconds</source>
        <translation>选择 %1 没有有效的时间（“%2”，以秒为单位）</translation>
    </message>
    <message>
        <source>choice %1 has &quot;%2&quot; that are no list</source>
        <translation>选择 %1 的“%2”不是列表</translation>
    </message>
    <message>
        <source>it has more than %1 seeds and boxes</source>
        <translation>种子和选框超过 %1 个</translation>
    </message>
    <message>
        <source>choice %1 has a box that is not left, top, width and height in fractions of the picture</source>
        <translation>选择 %1 的选框不是以画面比例表示的左、上、宽、高</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;seeds&quot; that show what it means</source>
        <translation>选择 %1 没有说明其含义的“seeds”</translation>
    </message>
    <message>
        <source>choice %1 has more than %2 &quot;pictures&quot;</source>
        <translation>选择 %1 的“pictures”超过 %2 个</translation>
    </message>
    <message>
        <source>choice %1 has &quot;pictures&quot; that are not times with 16 hexadecimal digits</source>
        <translation>选择 %1 的“pictures”不是带 16 位十六进制数的时间</translation>
    </message>
    <message>
        <source>choice %1 has no known &quot;kind&quot;; it is follow, avoid, hold, fit or automatic</source>
        <translation>选择 %1 没有已知的“kind”；应为 follow、avoid、hold、fit 或 automatic</translation>
    </message>
    <message>
        <source>choice %1 ends before it begins</source>
        <translation>选择 %1 在开始之前结束</translation>
    </message>
    <message>
        <source>choice %1 has no &quot;centre&quot; in fractions of the picture</source>
        <translation>选择 %1 没有以画面比例表示的“centre”</translation>
    </message>
    <message>
        <source>it is longer than %1 bytes</source>
        <translation>超过 %1 字节</translation>
    </message>
    <message>
        <source>it is no list of choices (JSON, byte %1)</source>
        <translation>不是选择列表（JSON，第 %1 字节）</translation>
    </message>
    <message>
        <source>it is of version %1, and this program reads version %2</source>
        <translation>版本为 %1，本程序读取版本 %2</translation>
    </message>
    <message>
        <source>it has no &quot;version&quot;</source>
        <translation>没有“version”</translation>
    </message>
    <message>
        <source>it has no list of &quot;choices&quot;</source>
        <translation>没有“choices”列表</translation>
    </message>
    <message>
        <source>it has more than %1 choices</source>
        <translation>选择超过 %1 个</translation>
    </message>
    <message>
        <source>Cannot open %1: it is not a regular file.</source>
        <translation>无法打开 %1：不是普通文件。</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
</context>
<context>
    <name>KxDetectorFiles</name>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>it is too large for a detector</source>
        <translation>对检测器来说太大</translation>
    </message>
    <message>
        <source>its checksum is unknown (no SHA256SUMS beside it names the file)</source>
        <translation>校验和未知（同一文件夹的 SHA256SUMS 中没有该文件）</translation>
    </message>
    <message>
        <source>it is damaged (SHA256SUMS has another checksum)</source>
        <translation>已损坏（与 SHA256SUMS 中的校验和不符）</translation>
    </message>
    <message>
        <source>Cannot use the detector %1: %2.</source>
        <translation>无法使用检测器 %1：%2。</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有该文件夹</translation>
    </message>
    <message>
        <source>it is not a folder</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>it has neither %1 nor %2</source>
        <translation>既没有 %1 也没有 %2</translation>
    </message>
    <message>
        <source>Cannot use the models in %1: %2.</source>
        <translation>无法使用 %1 中的模型：%2。</translation>
    </message>
    <message>
        <source>The detector of people and animals is not installed; the analysis works without it.</source>
        <translation>未安装人和动物检测器；没有它也可以分析。</translation>
    </message>
    <message>
        <source>it is not NanoDet-g as OpenCV can run it</source>
        <translation>不是 OpenCV 可以运行的 NanoDet-g</translation>
    </message>
    <message>
        <source>it is not a face detector that OpenCV can run</source>
        <translation>不是 OpenCV 可以运行的人脸检测器</translation>
    </message>
</context>
<context>
    <name>KxEncoderProof</name>
    <message>
        <source>there is nothing to compare it with</source>
        <translation>没有可比较的内容</translation>
    </message>
    <message>
        <source>of %1 pictures it wrote %2</source>
        <translation>%1 个画面中只写入了 %2 个</translation>
    </message>
    <message>
        <source>its pictures have another size or format</source>
        <translation>其画面的大小或格式不同</translation>
    </message>
    <message>
        <source>its picture %1 differs too much (%2 dB, %3 are needed)</source>
        <translation>第 %1 个画面差异太大（%2 dB，需要 %3）</translation>
    </message>
</context>
<context>
    <name>KxFittedCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>无法裁剪画面：要裁剪的矩形为空。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>无法裁剪画面：内存不足。</translation>
    </message>
</context>
<context>
    <name>KxFollowPass</name>
    <message>
        <source>Cannot follow in %1: %2.</source>
        <translation>无法在 %1 中跟随：%2。</translation>
    </message>
</context>
<context>
    <name>KxFrameCutter</name>
    <message>
        <source>Cannot cut a picture: the rectangle to cut out is empty.</source>
        <translation>无法裁剪画面：要裁剪的矩形为空。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: its pixel format &quot;%1&quot; cannot be converted.</source>
        <translation>无法裁剪画面：无法转换像素格式“%1”。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: memory ran out.</source>
        <translation>无法裁剪画面：内存不足。</translation>
    </message>
    <message>
        <source>Cannot cut a picture: it cannot be scaled from %1 x %2 to %3 x %4.</source>
        <translation>无法裁剪画面：无法从 %1 x %2 缩放到 %3 x %4。</translation>
    </message>
</context>
<context>
    <name>KxInputFile</name>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>这是单张图片，不是视频</translation>
    </message>
    <message>
        <source>it is a list of other files, not a video</source>
        <translation>这是其他文件的列表，不是视频</translation>
    </message>
    <message>
        <source>it is not a video file</source>
        <translation>不是视频文件</translation>
    </message>
    <message>
        <source>it has more than %1 streams</source>
        <translation>超过 %1 个流</translation>
    </message>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>reading it takes too long</source>
        <translation>读取时间过长</translation>
    </message>
    <message>
        <source>it is damaged or incomplete</source>
        <translation>已损坏或不完整</translation>
    </message>
    <message>
        <source>it is a link to a file that does not exist</source>
        <translation>链接指向的文件不存在</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有该文件</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>its pictures are too large (%1 x %2)</source>
        <translation>画面太大（%1 x %2）</translation>
    </message>
    <message>
        <source>it has sound but no moving picture</source>
        <translation>有声音但没有视频画面</translation>
    </message>
    <message>
        <source>it has no moving picture</source>
        <translation>没有视频画面</translation>
    </message>
    <message>
        <source>its name is not valid UTF-8; rename it</source>
        <translation>其名称不是有效的 UTF-8；请重命名</translation>
    </message>
</context>
<context>
    <name>KxJoinedPictures</name>
    <message>
        <source>%1 does not hold pictures of a part of this video</source>
        <translation>%1 不包含此视频某一部分的图像</translation>
    </message>
    <message>
        <source>%1 is damaged</source>
        <translation>%1 已损坏</translation>
    </message>
    <message>
        <source>%1 begins with other pictures than the part before ends with; analyse the video as a whole</source>
        <translation>%1 开头的图像与前一部分结尾的图像不同；请分析整个视频</translation>
    </message>
</context>
<context>
    <name>KxLanguage</name>
    <message>
        <source>Language of the texts: %1. Otherwise that of the system.</source>
        <translation>文本的语言：%1。默认为系统语言。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an available language; choose one of %2.</source>
        <translation>“%1”不是可用的语言；请选择 %2 之一。</translation>
    </message>
</context>
<context>
    <name>KxMediaLibraryUtils</name>
    <message>
        <source>Cannot open %1: it has no moving picture.</source>
        <translation>无法打开 %1：没有视频画面。</translation>
    </message>
</context>
<context>
    <name>KxMediaPlayerPresenter</name>
    <message>
        <source>Cannot show the timeline: it holds no video.</source>
        <translation>无法显示时间线：其中没有视频。</translation>
    </message>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>无法显示 %1：%2。</translation>
    </message>
    <message>
        <source>its pictures cannot be decoded</source>
        <translation>无法解码其画面</translation>
    </message>
</context>
<context>
    <name>KxMessageBox</name>
    <message>
        <source>Do not show this again</source>
        <translation>不再显示</translation>
    </message>
</context>
<context>
    <name>KxMp4Writer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>pictures of %1 x %2 pixels cannot be encoded; both have to be even</source>
        <translation>无法编码 %1 x %2 像素的画面；两个数都必须是偶数</translation>
    </message>
    <message>
        <source>the frame rate is unknown</source>
        <translation>帧率未知</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>没有可写入的画面</translation>
    </message>
</context>
<context>
    <name>KxOpenFileLineEdit</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
</context>
<context>
    <name>KxOpenFileName</name>
    <message>
        <source>All files(%1)</source>
        <translation>所有文件(%1)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>KxOutputFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>no free name was found in its folder</source>
        <translation>在其文件夹中找不到可用的名称</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>文件夹 %1 不存在</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
</context>
<context>
    <name>KxOutputSize</name>
    <message>
        <source>the size %1 x %2 does not have the shape of the crop; %1 x %3 does</source>
        <translation>大小 %1 x %2 与裁剪框的形状不符；%1 x %3 相符</translation>
    </message>
</context>
<context>
    <name>KxPictureFeed</name>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>无法渲染 %1：%2。</translation>
    </message>
    <message>
        <source>Cannot render %1 at frame %2. %3</source>
        <translation>无法渲染 %1 的第 %2 帧。%3</translation>
    </message>
    <message>
        <source>Memory ran out.</source>
        <translation>内存不足。</translation>
    </message>
</context>
<context>
    <name>KxPictureFilter</name>
    <message>
        <source>it yields no picture</source>
        <translation>没有产生画面</translation>
    </message>
</context>
<context>
    <name>KxPicturesFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 被截断或已损坏：只能解码一部分。</translation>
    </message>
</context>
<context>
    <name>KxPlayerToolBarBase</name>
    <message>
        <source>Play (%1)</source>
        <translation>播放 (%1)</translation>
    </message>
    <message>
        <source>Pause (%1)</source>
        <translation>暂停 (%1)</translation>
    </message>
    <message>
        <source>Stop (%1)</source>
        <translation>停止 (%1)</translation>
    </message>
    <message>
        <source>Backward (%1)</source>
        <translation>后退 (%1)</translation>
    </message>
    <message>
        <source>Forward (%1)</source>
        <translation>前进 (%1)</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
</context>
<context>
    <name>KxProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>KxRenderSound</name>
    <message>
        <source>The sound is silent; its loudness is not changed.</source>
        <translation>声音为静音；不更改其响度。</translation>
    </message>
    <message>
        <source>The loudness of the sound is not changed: %1.</source>
        <translation>不更改声音的响度：%1。</translation>
    </message>
    <message>
        <source>The sound is encoded again: %1.</source>
        <translation>声音将重新编码：%1。</translation>
    </message>
    <message>
        <source>The sound is left out. %1</source>
        <translation>声音已省略。%1</translation>
    </message>
</context>
<context>
    <name>KxRenderSource</name>
    <message>
        <source>Cannot render the timeline: it shows no file.</source>
        <translation>无法渲染时间线：其中没有文件。</translation>
    </message>
</context>
<context>
    <name>KxRenderer</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>a resolution of %1 x %2 is not possible</source>
        <translation>不支持 %1 x %2 的分辨率</translation>
    </message>
    <message>
        <source>it is the very file that is rendered</source>
        <translation>这正是要渲染的文件</translation>
    </message>
    <message>
        <source>Cannot render %1: it is damaged.</source>
        <translation>无法渲染 %1：已损坏。</translation>
    </message>
    <message>
        <source>%1 is damaged or incomplete: only %2 of %3 frames could be rendered.</source>
        <translation>%1 已损坏或不完整：%3 帧中只渲染了 %2 帧。</translation>
    </message>
    <message>
        <source>The sound of %1 is damaged and ends early.</source>
        <translation>%1 的声音已损坏并提前结束。</translation>
    </message>
    <message>
        <source>%1 frames a second are not possible</source>
        <translation>不支持每秒 %1 帧</translation>
    </message>
    <message>
        <source>Cannot render %1: %2.</source>
        <translation>无法渲染 %1：%2。</translation>
    </message>
    <message>
        <source>its parts have %1 of %2 frames</source>
        <translation>其各部分共有 %1 帧，应为 %2 帧</translation>
    </message>
    <message>
        <source>there is no picture to write</source>
        <translation>没有可写入的画面</translation>
    </message>
</context>
<context>
    <name>KxSoundPackets</name>
    <message>
        <source>the time stamps of the file jump</source>
        <translation>文件的时间戳有跳跃</translation>
    </message>
    <message>
        <source>there is no such sound track</source>
        <translation>没有该音轨</translation>
    </message>
    <message>
        <source>MP4 cannot hold %1</source>
        <translation>MP4 不能包含 %1</translation>
    </message>
</context>
<context>
    <name>KxSystemError</name>
    <message>
        <source>the file would become too large for its disk</source>
        <translation>文件会超过磁盘允许的大小</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>没有该文件</translation>
    </message>
    <message>
        <source>permission is denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>the disk can only be read</source>
        <translation>磁盘为只读</translation>
    </message>
    <message>
        <source>the disk reports an error</source>
        <translation>磁盘报告错误</translation>
    </message>
    <message>
        <source>memory ran out</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>too many files are open</source>
        <translation>打开的文件太多</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>名称太长</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>这是文件夹</translation>
    </message>
    <message>
        <source>its reader has gone</source>
        <translation>读取方已退出</translation>
    </message>
    <message>
        <source>it is in use</source>
        <translation>正在使用中</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
</context>
<context>
    <name>KxSystemFile</name>
    <message>
        <source>another program has it open</source>
        <translation>另一个程序已将其打开</translation>
    </message>
</context>
<context>
    <name>KxThread</name>
    <message>
        <source>memory ran out</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>an unknown error occurred</source>
        <translation>发生未知错误</translation>
    </message>
</context>
<context>
    <name>KxThumbnailPicture</name>
    <message>
        <source>Cannot show %1: no picture could be read.</source>
        <translation>无法显示 %1：读取不到画面。</translation>
    </message>
</context>
<context>
    <name>KxThumbnailer</name>
    <message>
        <source>Cannot show %1: %2.</source>
        <translation>无法显示 %1：%2。</translation>
    </message>
</context>
<context>
    <name>KxToneMapper</name>
    <message>
        <source>Cannot convert a picture of high dynamic range: %1.</source>
        <translation>无法转换高动态范围画面：%1。</translation>
    </message>
</context>
<context>
    <name>KxTopLevelWindowTitleBar</name>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>KxVideoAnalysis</name>
    <message>
        <source>Choice %1 is applied %2 s earlier, where its pictures are in %3.</source>
        <translation>选择 %1 提前 %2 秒应用，即其画面在 %3 中的位置。</translation>
    </message>
    <message>
        <source>Choice %1 is applied %2 s later, where its pictures are in %3.</source>
        <translation>选择 %1 推迟 %2 秒应用，即其画面在 %3 中的位置。</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its pictures are not in %2.</source>
        <translation>选择 %1 未应用：其画面不在 %2 中。</translation>
    </message>
    <message>
        <source>The aspect ratio %1:%2 has a side that is not positive.</source>
        <translation>宽高比 %1:%2 的一边不是正数。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: its time stamps span %2 frames, the limit is %3.</source>
        <translation>无法分析 %1：其时间戳跨越 %2 帧，上限为 %3。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>无法分析 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is cut off or damaged: it decodes only in part.</source>
        <translation>%1 被截断或已损坏：只能解码一部分。</translation>
    </message>
    <message>
        <source>What is followed is lost from %1 s to %2 s: point at it again there.</source>
        <translation>跟随的对象从 %1 秒到 %2 秒丢失：请在该处重新指定。</translation>
    </message>
    <message>
        <source>Choice %1 is not applied: its time is outside of %2.</source>
        <translation>选择 %1 未应用：其时间不在 %2 的范围内。</translation>
    </message>
</context>
<context>
    <name>KxVideoDecoder</name>
    <message>
        <source>its video format (%1) is not supported</source>
        <translation>不支持其视频格式（%1）</translation>
    </message>
    <message>
        <source>its video stream is damaged</source>
        <translation>视频流已损坏</translation>
    </message>
</context>
<context>
    <name>KxVideoEncoder</name>
    <message>
        <source>the video encoder %1 is missing</source>
        <translation>缺少视频编码器 %1</translation>
    </message>
    <message>
        <source>the video encoder %1 does not start (%2)</source>
        <translation>视频编码器 %1 无法启动（%2）</translation>
    </message>
</context>
<context>
    <name>KxVideoPart</name>
    <message>
        <source>it has no picture</source>
        <translation>其中没有图像</translation>
    </message>
</context>
<context>
    <name>KxVideoParts</name>
    <message>
        <source>Cannot join %1 to %2: it was encoded in another way.</source>
        <translation>无法将 %1 与 %2 合并：编码方式不同。</translation>
    </message>
    <message>
        <source>Cannot join %1: its time stamps are damaged.</source>
        <translation>无法合并 %1：其时间戳已损坏。</translation>
    </message>
    <message>
        <source>Cannot join %1: it is damaged.</source>
        <translation>无法合并 %1：文件已损坏。</translation>
    </message>
</context>
<context>
    <name>KxVideoSource</name>
    <message>
        <source>it was cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>no picture of it can be decoded, it is damaged</source>
        <translation>无法解码任何画面，已损坏</translation>
    </message>
    <message>
        <source>it is a single picture, not a video</source>
        <translation>这是单张图片，不是视频</translation>
    </message>
    <message>
        <source>it cannot be read from the start again</source>
        <translation>无法从头重新读取</translation>
    </message>
    <message>
        <source>its time stamps are damaged</source>
        <translation>时间戳已损坏</translation>
    </message>
</context>
<context>
    <name>KxWindowsNames</name>
    <message>
        <source>its name contains a control character</source>
        <translation>名称包含控制字符</translation>
    </message>
    <message>
        <source>a name cannot contain the character %1</source>
        <translation>名称不能包含字符 %1</translation>
    </message>
    <message>
        <source>%1 is the name of a device</source>
        <translation>%1 是设备名称</translation>
    </message>
    <message>
        <source>a name cannot end with a dot or a space</source>
        <translation>名称不能以句点或空格结尾</translation>
    </message>
    <message>
        <source>its name is too long</source>
        <translation>名称太长</translation>
    </message>
</context>
<context>
    <name>LibraryConnection</name>
    <message>
        <source>another program is using it</source>
        <translation>另一个程序正在使用</translation>
    </message>
    <message>
        <source>it is write-protected</source>
        <translation>有写保护</translation>
    </message>
    <message>
        <source>the disk cannot be read or written</source>
        <translation>无法读写磁盘</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>无法打开</translation>
    </message>
</context>
<context>
    <name>LibraryOpening</name>
    <message>
        <source>Cannot open the library %1: %2. What you do now is not saved.</source>
        <translation>无法打开媒体库 %1：%2。您现在的操作不会被保存。</translation>
    </message>
    <message>
        <source>its backup %1 cannot be written</source>
        <translation>无法写入其备份 %1</translation>
    </message>
    <message>
        <source>it was written by a newer version of this program</source>
        <translation>由本程序的更新版本写入</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>无法创建其文件夹</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>another program is opening it</source>
        <translation>另一个程序正在打开它</translation>
    </message>
    <message>
        <source>its folder cannot be written to</source>
        <translation>无法写入其文件夹</translation>
    </message>
    <message>
        <source>it is damaged, and it cannot be renamed</source>
        <translation>已损坏且无法重命名</translation>
    </message>
    <message>
        <source>The library was damaged. It was renamed to %1, and a new one was begun.</source>
        <translation>媒体库已损坏。已将其重命名为 %1，并新建了一个。</translation>
    </message>
</context>
<context>
    <name>LibraryStore</name>
    <message>
        <source>Cannot read the library %1: %2. What you do now is not saved.</source>
        <translation>无法读取媒体库 %1：%2。您现在的操作不会被保存。</translation>
    </message>
    <message>
        <source>Cannot save the library %1: %2.</source>
        <translation>无法保存媒体库 %1：%2。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>已跳过 %n 个非视频文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Auto Reframe</source>
        <translation>Auto Reframe</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>全部重新构图…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Add videos to the library</source>
        <translation>将视频添加到媒体库</translation>
    </message>
    <message>
        <source>Reframe all selected videos without looking at each</source>
        <translation>对所有所选视频重新构图，无需逐个查看</translation>
    </message>
    <message>
        <source>Reframe the selected videos one after the other</source>
        <translation>逐个对所选视频重新构图</translation>
    </message>
    <message>
        <source>No videos yet</source>
        <translation>还没有视频</translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>%n 个视频</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>已选择 %n 个</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>%n 个导出未完成。退出时将被取消。</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <translation>继续导出</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>All supported files</source>
        <translation>所有支持的文件</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Import Folder</source>
        <translation>导入文件夹</translation>
    </message>
    <message>
        <source>Import Folder…</source>
        <translation>导入文件夹…</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <translation>打开最近使用</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>保存裁剪轨迹…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>打开裁剪轨迹…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>About Auto Reframe</source>
        <translation>关于 Auto Reframe</translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… 还有 %n 个。</numerusform>
        </translation>
    </message>
    <message>
        <source>Find %1</source>
        <translation>查找 %1</translation>
    </message>
    <message>
        <source>The content of this file differs from that of %1.</source>
        <translation>此文件的内容与 %1 不同。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>使用此文件</translation>
    </message>
    <message>
        <source>Your edits are kept, but may not fit this file.</source>
        <translation>您的编辑会保留，但可能不适合此文件。</translation>
    </message>
    <message>
        <source>This computer may be too slow for the analysis. To try anyway, start it again.</source>
        <translation>这台计算机进行分析可能太慢。如仍要尝试，请再次启动分析。</translation>
    </message>
    <message>
        <source>Continue with %1?</source>
        <translation>继续处理 %1？</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>还剩 %n 个所选视频。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is no longer in the library. Import it to look at its shots.</source>
        <translation>%1 已不在媒体库中。请导入它以查看其镜头。</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>系统语言</translation>
    </message>
    <message>
        <source>The crop track was saved.</source>
        <translation>裁剪轨迹已保存。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Open Crop Track</source>
        <translation>打开裁剪轨迹</translation>
    </message>
    <message>
        <source>Crop tracks</source>
        <translation>裁剪轨迹</translation>
    </message>
    <message>
        <source>The file for %1 was saved.</source>
        <translation>供 %1 使用的文件已保存。</translation>
    </message>
</context>
<context>
    <name>MediaBackendLoader</name>
    <message>
        <source>Cannot load the video engine: %1.</source>
        <translation>无法加载视频引擎：%1。</translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message>
        <source>There are no videos in %1.</source>
        <translation>%1 中没有视频。</translation>
    </message>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>已略过 %1 中的 %n 个视频：其名称不是有效的 UTF-8。请重命名。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibraryModel</name>
    <message>
        <source>Drop videos here</source>
        <translation>将视频拖放到这里</translation>
    </message>
    <message>
        <source>%1 was not found. Right-click to find it.</source>
        <translation>找不到 %1。请右键单击以查找。</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>正在打开…</translation>
    </message>
    <message>
        <source>File not found</source>
        <translation>找不到文件</translation>
    </message>
</context>
<context>
    <name>MediaLibraryView</name>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Find File…</source>
        <translation>查找文件…</translation>
    </message>
    <message>
        <source>Auto Reframe…</source>
        <translation>Auto Reframe…</translation>
    </message>
    <message>
        <source>Reframe All…</source>
        <translation>全部重新构图…</translation>
    </message>
    <message>
        <source>Save Crop Track…</source>
        <translation>保存裁剪轨迹…</translation>
    </message>
    <message>
        <source>Open Crop Track…</source>
        <translation>打开裁剪轨迹…</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>从媒体库中移除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Drop videos here</source>
        <translation>将视频拖放到这里</translation>
    </message>
    <message>
        <source>or click to choose files</source>
        <translation>或单击以选择文件</translation>
    </message>
</context>
<context>
    <name>MediaLoader</name>
    <message>
        <source>Cannot open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
</context>
<context>
    <name>MediaText</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s left</source>
        <translation>剩余 %1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>剩余 %1 小时 %2 分</translation>
    </message>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n 处编辑不在此剪辑版本中</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OutputNames</name>
    <message>
        <source>There is no %1. Use %2.</source>
        <translation>没有 %1。请使用 %2。</translation>
    </message>
    <message>
        <source>Enter a file name.</source>
        <translation>请输入文件名。</translation>
    </message>
</context>
<context>
    <name>OutputOptions</name>
    <message>
        <source>--size takes even numbers up to 16384 such as 1080x1920, or a height such as 1920p; &quot;%1&quot; is neither.</source>
        <translation>--size 接受不超过 16384 的偶数，如 1080x1920，或高度，如 1920p；“%1”两者都不是。</translation>
    </message>
    <message>
        <source>--fps takes a number from 1 to 240; &quot;%1&quot; is none.</source>
        <translation>--fps 接受 1 到 240 的数；“%1”不是。</translation>
    </message>
    <message>
        <source>--quality takes a number from 0 to 100; &quot;%1&quot; is none.</source>
        <translation>--quality 接受 0 到 100 的数；“%1”不是。</translation>
    </message>
    <message>
        <source>--bitrate takes bits a second from 10k to 300M; &quot;%1&quot; are none.</source>
        <translation>--bitrate 接受 10k 到 300M 的每秒比特数；“%1”不是。</translation>
    </message>
    <message>
        <source>--codec takes h264, hevc or av1; &quot;%1&quot; is none of them.</source>
        <translation>--codec 接受 h264、hevc 或 av1；“%1”都不是。</translation>
    </message>
    <message>
        <source>--encoder takes auto, software, vaapi, nvenc or qsv; &quot;%1&quot; is none of them.</source>
        <translation>--encoder 接受 auto、software、vaapi、nvenc 或 qsv；“%1”都不是。</translation>
    </message>
    <message>
        <source>--hdr takes keep or tonemap; &quot;%1&quot; is neither.</source>
        <translation>--hdr 接受 keep 或 tonemap；“%1”两者都不是。</translation>
    </message>
    <message>
        <source>--sound takes copy or encode; &quot;%1&quot; is neither.</source>
        <translation>--sound 接受 copy 或 encode；“%1”两者都不是。</translation>
    </message>
    <message>
        <source>--loudness takes LUFS from -70 to -5; &quot;%1&quot; are none.</source>
        <translation>--loudness 接受 -70 到 -5 的 LUFS；“%1”不是。</translation>
    </message>
    <message>
        <source>--quality and --bitrate exclude each other.</source>
        <translation>--quality 和 --bitrate 不能同时使用。</translation>
    </message>
    <message>
        <source>--loudness changes the sound, which --sound copy does not.</source>
        <translation>--loudness 会更改声音，而 --sound copy 不会。</translation>
    </message>
    <message>
        <source>--hdr keep needs --codec hevc.</source>
        <translation>--hdr keep 需要 --codec hevc。</translation>
    </message>
    <message>
        <source>--hdr keep needs --encoder software or auto.</source>
        <translation>--hdr keep 需要 --encoder software 或 auto。</translation>
    </message>
    <message>
        <source>Size of the result, or its height, such as 1080x1920 or 1920p; as large as the crop when not given.</source>
        <translation>结果的大小或高度，如 1080x1920 或 1920p；未指定时与裁剪框一样大。</translation>
    </message>
    <message>
        <source>Frames a second of the result; those of the source when not given.</source>
        <translation>结果的每秒帧数；未指定时与源视频相同。</translation>
    </message>
    <message>
        <source>Constant quality from 0 to 100, about alike in each codec, instead of a bit rate.</source>
        <translation>0 到 100 的恒定质量，在各编解码器中大致相同，用来代替比特率。</translation>
    </message>
    <message>
        <source>Bits a second of the picture, such as 800k or 6M; those of the source when not given.</source>
        <translation>画面的每秒比特数，如 800k 或 6M；未指定时与源视频相同。</translation>
    </message>
    <message>
        <source>Codec of the picture: h264, hevc or av1 (h264).</source>
        <translation>画面的编解码器：h264、hevc 或 av1 (h264)。</translation>
    </message>
    <message>
        <source>What encodes the picture: software, vaapi, nvenc, qsv, or auto: hardware if ten frames of the video show that it works (software).</source>
        <translation>画面的编码方式：software、vaapi、nvenc、qsv 或 auto：如果视频的十帧表明硬件可用，则使用硬件 (software)。</translation>
    </message>
    <message>
        <source>What becomes of a picture in high dynamic range: tonemap to the usual range, or keep, as 10-bit HEVC (tonemap).</source>
        <translation>高动态范围画面的处理：tonemap 转换为普通范围，keep 保留为 10 位 HEVC (tonemap)。</translation>
    </message>
    <message>
        <source>Bring the sound to this loudness in LUFS (EBU R128), such as -14.</source>
        <translation>将声音调整到此响度 (LUFS，EBU R128)，如 -14。</translation>
    </message>
    <message>
        <source>What becomes of the sound: encode as AAC, or copy bit for bit where MP4 can hold it. When not given, AAC in mono or stereo that nothing changes is copied, and any other sound is encoded.</source>
        <translation>声音的处理方式：encode 编码为 AAC，copy 在 MP4 能容纳时逐位复制。未指定时，无任何更改的单声道或立体声 AAC 会被复制，其他声音则被编码。</translation>
    </message>
</context>
<context>
    <name>PreviewOverlay</name>
    <message>
        <source>Frame %1</source>
        <translation>第 %1 帧</translation>
    </message>
    <message>
        <source>Shot %1 of %2</source>
        <translation>镜头 %1 / %2</translation>
    </message>
    <message>
        <source>confidence %1</source>
        <translation>置信度 %1</translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message>
        <source>%1 of %2 done</source>
        <translation>已完成 %1 / %2</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n 个失败</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n 个完成</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>%n 个取消</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n 个待查看</numerusform>
        </translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Progress of all exports</source>
        <translation>所有导出的进度</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Go on with the exports</source>
        <translation>继续导出</translation>
    </message>
    <message>
        <source>Interrupt the exports for a while</source>
        <translation>暂时中断导出</translation>
    </message>
    <message>
        <source>Cancel all</source>
        <translation>全部取消</translation>
    </message>
    <message>
        <source>Cancel all exports of Reframe All that are not done</source>
        <translation>取消“全部重新构图”中所有未完成的导出</translation>
    </message>
    <message>
        <source>Retry failed</source>
        <translation>重试失败项</translation>
    </message>
    <message>
        <source>Export those that failed again</source>
        <translation>重新导出失败的项目</translation>
    </message>
    <message>
        <source>Look at them</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Open the first video that has doubtful shots</source>
        <translation>打开第一个有存疑镜头的视频</translation>
    </message>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n 个缺少部分编辑</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message>
        <source>%1: %2 analysed</source>
        <translation>%1：已分析 %2</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3</source>
        <translation>%1：%2 -&gt; %3</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 帧</translation>
    </message>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n 帧</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has no moving picture.</source>
        <translation>无法对 %1 重新构图：没有视频画面。</translation>
    </message>
    <message>
        <source>Cannot follow %1 in %2: %3.</source>
        <translation>无法在 %2 中跟随 %1：%3。</translation>
    </message>
    <message>
        <source>Cannot write %1: it is one of the inputs.</source>
        <translation>无法写入 %1：它是输入之一。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it is too short (%2; 32 are needed).</source>
        <translation>无法对 %1 重新构图：太短（%2，需要 32 帧）。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: it has the aspect ratio %2:%3 already.</source>
        <translation>无法对 %1 重新构图：宽高比已经是 %2:%3。</translation>
    </message>
    <message>
        <source>Cannot use %1: it holds %2 of the %3 of %4.</source>
        <translation>无法使用 %1：只有 %2 帧（%4 有 %3）。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: the analysis found nothing.</source>
        <translation>无法对 %1 重新构图：分析没有找到任何内容。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: there is no video in this folder.</source>
        <translation>无法对 %1 重新构图：此文件夹中没有视频。</translation>
    </message>
    <message>
        <source>Cannot draw the contact sheet of %1.</source>
        <translation>无法绘制 %1 的缩略图表。</translation>
    </message>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>无法对 %1 重新构图：%2。</translation>
    </message>
    <message>
        <source>%1: %2 -&gt; %3 (encoded by %4)</source>
        <translation>%1：%2 -&gt; %3（由 %4 编码）</translation>
    </message>
    <message>
        <source>frames %1 to %2</source>
        <translation>第 %1 到 %2 帧</translation>
    </message>
    <message>
        <source>%1: skipped, up to date: %2</source>
        <translation>%1：已跳过，已是最新：%2</translation>
    </message>
    <message>
        <source>The picture of %1 is enlarged: its size, %2 x %3, is above that of the crop, %4 x %5.</source>
        <translation>%1 的画面将被放大：其尺寸 %2 x %3 大于裁剪框的 %4 x %5。</translation>
    </message>
</context>
<context>
    <name>ReframeJobParts</name>
    <message>
        <source>Cannot take that part of %1: %2.</source>
        <translation>无法取 %1 的这一部分：%2。</translation>
    </message>
    <message>
        <source>Cannot join %1: pictures are for an analysis, and with --apply there is none.</source>
        <translation>无法合并 %1：图像用于分析，而使用 --apply 时不进行分析。</translation>
    </message>
    <message>
        <source>Cannot join %1: parts of the video need the crop track that they were made with (--apply).</source>
        <translation>无法合并 %1：视频的各部分需要制作时所用的裁剪轨迹 (--apply)。</translation>
    </message>
    <message>
        <source>Cannot analyse %1: %2.</source>
        <translation>无法分析 %1：%2。</translation>
    </message>
</context>
<context>
    <name>ReframeOptions</name>
    <message>
        <source>Aspect ratio of the result (9:16); several with commas between them: the video is looked at once.</source>
        <translation>结果的宽高比 (9:16)；可用逗号分隔多个：视频只分析一次。</translation>
    </message>
    <message>
        <source>How readily the crop follows: auto, fast or slow (auto).</source>
        <translation>裁剪框跟随的快慢：auto、fast 或 slow (auto)。</translation>
    </message>
    <message>
        <source>Where several people talk, follow who speaks: auto or off (auto).</source>
        <translation>多人说话时跟随说话者：auto 或 off (auto)。</translation>
    </message>
    <message>
        <source>Where to write the video; beside the input when not given.</source>
        <translation>视频的写入位置；未指定时与输入在同一位置。</translation>
    </message>
    <message>
        <source>Write the crop of every frame, as .json or .csv.</source>
        <translation>以 .json 或 .csv 写入每一帧的裁剪框。</translation>
    </message>
    <message>
        <source>Write the crop as a project or as keyframes for another program: .mlt, .kdenlive, .fcpxml, .txt (After Effects) or .ffscript (ffmpeg). A suffix alone, such as mlt, names the file after the video. May be given several times.</source>
        <translation>将裁剪框写为其他程序的项目或关键帧：.mlt、.kdenlive、.fcpxml、.txt (After Effects) 或 .ffscript (ffmpeg)。只写后缀（如 mlt）时，文件按视频命名。可多次指定。</translation>
    </message>
    <message>
        <source>Take the crops from FILE instead of analysing.</source>
        <translation>使用 FILE 中的裁剪框，不进行分析。</translation>
    </message>
    <message>
        <source>Decide as FILE says (.json): what to follow, to avoid, where to hold the crop or to show the whole picture.</source>
        <translation>按 FILE (.json) 的内容决定：跟随什么、避开什么、在哪里固定裁剪框或显示整个画面。</translation>
    </message>
    <message>
        <source>Write what --choices and --follow decided to FILE (.json), with what its pictures look like, for this or another cut of the video.</source>
        <translation>将 --choices 和 --follow 的决定连同画面特征写入 FILE (.json)，供此视频或其其他剪辑版本使用。</translation>
    </message>
    <message>
        <source>Follow what is at the point X,Y, or in the box from X,Y of the size W,H, through its shot. TIME in seconds, or a frame (75f); the place in pixels, or in fractions of the picture. May be given several times.</source>
        <translation>在整个镜头中跟随点 X,Y 处或从 X,Y 起大小为 W,H 的框中的对象。TIME 以秒为单位，或为帧 (75f)；位置以像素或画面比例表示。可多次指定。</translation>
    </message>
    <message>
        <source>Write the source with the crop drawn: a contact sheet as .png, or all of it, with sound and with what the analysis found, as .mp4.</source>
        <translation>写入画有裁剪框的源视频：缩略图表为 .png，带声音和分析结果的完整视频为 .mp4。</translation>
    </message>
    <message>
        <source>Write a page (.html) that shows what the analysis found.</source>
        <translation>写入显示分析结果的网页 (.html)。</translation>
    </message>
    <message>
        <source>Keep what an analysis saw in FOLDER, or nowhere, instead of the usual folder.</source>
        <translation>将分析记录保存在 FOLDER 中而不是默认文件夹；none 表示不保存。</translation>
    </message>
    <message>
        <source>Use the optional detectors in FOLDER, or none, instead of those that are installed.</source>
        <translation>使用 FOLDER 中的可选检测器而不是已安装的检测器；none 表示不使用。</translation>
    </message>
    <message>
        <source>Analyse only; write no video.</source>
        <translation>只分析，不写入视频。</translation>
    </message>
    <message>
        <source>Replace existing files instead of adding a number to the name.</source>
        <translation>替换现有文件，而不是在名称后加编号。</translation>
    </message>
    <message>
        <source>Print progress and results as JSON lines.</source>
        <translation>以 JSON 行输出进度和结果。</translation>
    </message>
    <message>
        <source>Print errors only.</source>
        <translation>只输出错误。</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>显示此文本。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>%1
Try reframe --help.</source>
        <translation>%1
请参阅 reframe --help。</translation>
    </message>
    <message>
        <source>%1 or .%2</source>
        <translation>%1 或 .%2</translation>
    </message>
    <message>
        <source>No input file was given.</source>
        <translation>未指定输入文件。</translation>
    </message>
    <message>
        <source>--output and --no-video exclude each other.</source>
        <translation>--output 和 --no-video 不能同时使用。</translation>
    </message>
    <message>
        <source>--report shows what an analysis found, and with --apply there is none.</source>
        <translation>--report 显示分析结果，而使用 --apply 时没有分析。</translation>
    </message>
    <message>
        <source>--apply takes one input.</source>
        <translation>--apply 只接受一个输入。</translation>
    </message>
    <message>
        <source>--apply takes one aspect ratio.</source>
        <translation>--apply 只接受一个宽高比。</translation>
    </message>
    <message>
        <source>--save-choices takes one aspect ratio.</source>
        <translation>--save-choices 只接受一个宽高比。</translation>
    </message>
    <message>
        <source>--choices and --follow take one input.</source>
        <translation>--choices 和 --follow 只接受一个输入。</translation>
    </message>
    <message>
        <source>--choices and --follow guide the analysis, and with --apply there is none.</source>
        <translation>--choices 和 --follow 用于引导分析，而使用 --apply 时没有分析。</translation>
    </message>
    <message>
        <source>--save-choices writes what --choices and --follow decided, and neither was given.</source>
        <translation>--save-choices 写入 --choices 和 --follow 的决定，但两者都未指定。</translation>
    </message>
    <message>
        <source>--edit-list takes the name of a .%1 file or such a suffix alone; %2 is neither.</source>
        <translation>--edit-list 接受 .%1 文件的名称或仅此类后缀；%2 两者都不是。</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios --edit-list takes a suffix alone; write %1 instead of %2.</source>
        <translation>有多个输入或宽高比时，--edit-list 只接受后缀；请写 %1 而不是 %2。</translation>
    </message>
    <message>
        <source>With several inputs or aspect ratios %1 must name an existing folder; %2 is none.</source>
        <translation>有多个输入或宽高比时，%1 必须是现有文件夹；%2 不是。</translation>
    </message>
    <message>
        <source>%1 takes an existing folder or the name of a .%2 file; %3 is neither.</source>
        <translation>%1 接受现有文件夹或 .%2 文件的名称；%3 两者都不是。</translation>
    </message>
    <message>
        <source>%1 begins like an option; as a file it is written ./%1.</source>
        <translation>%1 的开头像选项；作为文件应写成 ./%1。</translation>
    </message>
    <message>
        <source>Turns a video into another aspect ratio and keeps its subject in the picture.</source>
        <translation>将视频转换为其他宽高比，并让主体保持在画面中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no aspect ratio; write two whole numbers such as 9:16, neither more than 20 times the other.</source>
        <translation>“%1”不是宽高比；请写两个整数，如 9:16，任一个不得超过另一个的 20 倍。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no speed; it is auto, fast or slow.</source>
        <translation>“%1”不是速度；应为 auto、fast 或 slow。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is nothing to follow; write a time and a place such as 3.5@640,360, or a time and a box such as 3.5@0.4,0.2,0.1,0.5.</source>
        <translation>“%1”不能跟随；请写时间和位置，如 3.5@640,360，或时间和选框，如 3.5@0.4,0.2,0.1,0.5。</translation>
    </message>
    <message>
        <source>--speaker takes auto or off; &quot;%1&quot; is neither.</source>
        <translation>--speaker 接受 auto 或 off；“%1”两者都不是。</translation>
    </message>
    <message>
        <source>--status must not name an input.</source>
        <translation>--status 不能指定输入文件。</translation>
    </message>
    <message>
        <source>The video files to reframe; a folder is all videos in it.</source>
        <translation>要重新构图的视频文件；文件夹表示其中的所有视频。</translation>
    </message>
    <message>
        <source>--frames takes one input.</source>
        <translation>--frames 只接受一个输入。</translation>
    </message>
    <message>
        <source>--frames takes one aspect ratio.</source>
        <translation>--frames 只接受一个宽高比。</translation>
    </message>
    <message>
        <source>--frames with --apply renders a part of the video, and --no-video excludes that.</source>
        <translation>--frames 与 --apply 会渲染视频的一部分，与 --no-video 冲突。</translation>
    </message>
    <message>
        <source>--frames does a part of the work; files about the whole video, and choices, are for --join.</source>
        <translation>--frames 只完成一部分工作；针对整个视频的文件和选择请用于 --join。</translation>
    </message>
    <message>
        <source>--join takes a video and then its parts.</source>
        <translation>--join 先接受一个视频，然后是它的各部分。</translation>
    </message>
    <message>
        <source>--frames takes frames such as 0-2999, or a part such as 3/8; &quot;%1&quot; is neither.</source>
        <translation>--frames 接受 0-2999 这样的帧或 3/8 这样的部分；“%1”两者都不是。</translation>
    </message>
    <message>
        <source>The name of an input file is empty.</source>
        <translation>输入文件的名称为空。</translation>
    </message>
    <message>
        <source>--%1 needs a value, and an empty one was given.</source>
        <translation>--%1 需要一个值，而给出的值为空。</translation>
    </message>
</context>
<context>
    <name>ReframeParts</name>
    <message>
        <source>Cannot join %1: it is a part of another video than %2.</source>
        <translation>无法合并 %1：它不是 %2 的一部分，而属于另一个视频。</translation>
    </message>
    <message>
        <source>Cannot join %1: it was made with other settings or by another version (&quot;%2&quot;; now &quot;%3&quot;).</source>
        <translation>无法合并 %1：它是用其他设置或其他版本制作的（“%2”；现在是“%3”）。</translation>
    </message>
    <message>
        <source>Cannot join the parts of %1: the frames %2 to %3 are missing.</source>
        <translation>无法合并 %1 的各部分：缺少第 %2 到 %3 帧。</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: both have the frames %3 to %4.</source>
        <translation>无法合并 %1 和 %2：两者都有第 %3 到 %4 帧。</translation>
    </message>
    <message>
        <source>Cannot join %1: it is no part that --frames wrote.</source>
        <translation>无法合并 %1：它不是 --frames 写出的部分。</translation>
    </message>
    <message>
        <source>Cannot join %1 and %2: only one of them holds pictures of the analysis.</source>
        <translation>无法合并 %1 和 %2：其中只有一个包含分析图像。</translation>
    </message>
</context>
<context>
    <name>ReframeProgram</name>
    <message>
        <source>Cannot reframe %1: %2.</source>
        <translation>无法对 %1 重新构图：%2。</translation>
    </message>
</context>
<context>
    <name>ReframeReporter</name>
    <message>
        <source>%1: analyzing %2 %%3</source>
        <translation>%1：正在分析 %2%%3</translation>
    </message>
    <message>
        <source>%1: drawing the preview %2 %%3</source>
        <translation>%1：正在绘制预览 %2%%3</translation>
    </message>
    <message>
        <source>%1: rendering %2 %%3</source>
        <translation>%1：正在渲染 %2%%3</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>警告：%1</translation>
    </message>
    <message>
        <source>Cannot write to standard output: %1.</source>
        <translation>无法写入标准输出：%1。</translation>
    </message>
    <message>
        <source>an error occurred</source>
        <translation>发生错误</translation>
    </message>
    <message>
        <source>%1: interrupted.</source>
        <translation>%1：已中断。</translation>
    </message>
    <message>
        <source>%1: interrupted after %2 was written.</source>
        <translation>%1：写入 %2 之后中断。</translation>
    </message>
</context>
<context>
    <name>SaveDialog</name>
    <message>
        <source>Cannot write to the folder %1.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>Save To</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>StatusFile</name>
    <message>
        <source>Cannot write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>, %1 s left</source>
        <translation>，剩余 %1 秒</translation>
    </message>
    <message>
        <source>, %1 min %2 s left</source>
        <translation>，剩余 %1 分 %2 秒</translation>
    </message>
</context>
</TS>
