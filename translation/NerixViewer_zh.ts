<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>Application::CViewer</name>
    <message>
        <source>Nerix Viewer</source>
        <translation>Nerix Viewer</translation>
    </message>
</context>
<context>
    <name>Application::EndQuestion</name>
    <message>
        <source>The viewer itself</source>
        <translation>查看器本身</translation>
    </message>
    <message>
        <source>Closing the cameras</source>
        <translation>关闭相机</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot;</source>
        <translation>插件“%1”</translation>
    </message>
    <message>
        <source>The viewer is being closed, but this does not come to an end: %1. You can wait for it, or end the viewer without it.</source>
        <translation>正在关闭查看器，但以下项目未能结束：%1。您可以继续等待，也可以不等它而直接结束查看器。</translation>
    </message>
    <message>
        <source>Everything else is saved.</source>
        <translation>其余内容均已保存。</translation>
    </message>
    <message>
        <source>What these plug-ins keep at the end is not saved yet: %1.</source>
        <translation>以下插件在结束时保存的内容尚未保存：%1。</translation>
    </message>
    <message>
        <source>Nerix Viewer</source>
        <translation>Nerix Viewer</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>等待(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;End Now</source>
        <translation>立即结束(&amp;E)</translation>
    </message>
    <message>
        <source>The script %1</source>
        <translation>脚本 %1</translation>
    </message>
</context>
<context>
    <name>Application::Settings</name>
    <message>
        <source>The settings could not be kept in %1, so the next start has those of before, with your earlier answer about usage data: make room on the disk, or make the file writable.</source>
        <translation>无法将设置保存到 %1，因此下次启动时将使用之前的设置，包括您之前对使用数据的答复：请清理磁盘空间，或将该文件设为可写。</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraCommands</name>
    <message>
        <source>&amp;Open Camera</source>
        <translation>打开相机(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close Camera</source>
        <translation>关闭相机(&amp;C)</translation>
    </message>
    <message>
        <source>%1 is grabbing: press %2 to close it (Camera &gt; Close Camera)</source>
        <translation>%1 正在采集：要关闭它，请按 %2（相机 &gt; 关闭相机）</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraListModel</name>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraPanel</name>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Looking for cameras. Plug one in, and check its power and that its address is in a network of this computer.</source>
        <translation>正在查找相机。请连接相机，并确认其已通电，且地址位于本计算机所在的网络中。</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CameraState</name>
    <message>
        <source>Free</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>被其他程序占用</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Grabbing</source>
        <translation>采集中</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>已断开</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFile</name>
    <message>
        <source>file %1 cannot be written: %2; choose another folder</source>
        <translation>无法写入文件 %1：%2；请选择其他文件夹</translation>
    </message>
    <message>
        <source>file %1 holds no features: %2</source>
        <translation>文件 %1 不包含功能：%2</translation>
    </message>
    <message>
        <source>file %1 cannot be read: %2; choose another file</source>
        <translation>无法读取文件 %1：%2；请选择其他文件</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileEntries</name>
    <message>
        <source>Save &amp;Features...</source>
        <translation>保存功能(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Load Features...</source>
        <translation>加载功能(&amp;L)...</translation>
    </message>
    <message>
        <source>The features of %1 are saved in %2</source>
        <translation>%1 的功能已保存到 %2</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Save Features</source>
        <translation>保存功能</translation>
    </message>
    <message>
        <source>Load Features</source>
        <translation>加载功能</translation>
    </message>
    <message>
        <source>Features (*.%1)</source>
        <translation>功能 (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Saving the features of %1</source>
        <translation>正在保存 %1 的功能</translation>
    </message>
    <message>
        <source>Loading the features of %1</source>
        <translation>正在加载 %1 的功能</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1, features from %2: %3</source>
        <translation>%1，来自 %2 的功能：%3</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileTask</name>
    <message>
        <source>%1 has no features now: open it first</source>
        <translation>%1 当前没有功能：请先打开它</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReport</name>
    <message>
        <source>the camera made it &quot;%1&quot;</source>
        <translation>相机将其改为“%1”</translation>
    </message>
    <message>
        <source>%1 set, %2 unchanged, %3 read-only, %4 not set</source>
        <translation>已设置 %1，未更改 %2，只读 %3，未设置 %4</translation>
    </message>
    <message>
        <source>%1; cancelled</source>
        <translation>%1；已取消</translation>
    </message>
    <message>
        <source>left alone: %1; the file is not from this camera, so set them by hand</source>
        <translation>保持不变：%1；该文件不是从此相机保存的，请手动设置</translation>
    </message>
    <message>
        <source>left alone: %1; what belongs to the connection is never loaded</source>
        <translation>保持不变：%1；属于连接的内容从不加载</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReportDialog</name>
    <message>
        <source>Load Features</source>
        <translation>加载功能</translation>
    </message>
    <message>
        <source>Some features of %1 do not have the value of the file.</source>
        <translation>%1 的部分功能与文件中的值不同。</translation>
    </message>
    <message>
        <source>Features that were not set</source>
        <translation>未设置的功能</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureController</name>
    <message>
        <source>Select a camera to see its features.</source>
        <translation>选择相机即可查看其功能。</translation>
    </message>
    <message>
        <source>%1 is not connected.
Connect and open it to see its features.</source>
        <translation>%1 未连接。
请连接并打开相机以查看其功能。</translation>
    </message>
    <message>
        <source>%1 is closed.
Open it to see its features.</source>
        <translation>%1 已关闭。
请打开相机以查看其功能。</translation>
    </message>
    <message>
        <source>Reading the features of %1...</source>
        <translation>正在读取 %1 的功能...</translation>
    </message>
    <message>
        <source>The features of %1 cannot be read.
Close it and open it again.</source>
        <translation>无法读取 %1 的功能。
请关闭后重新打开。</translation>
    </message>
    <message>
        <source>%1: its bytes can only be set by a script</source>
        <translation>%1：其字节只能通过脚本设置</translation>
    </message>
    <message>
        <source>%1: the camera does not offer it now</source>
        <translation>%1：相机当前不提供此功能</translation>
    </message>
    <message>
        <source>%1: it is locked now; stop the grab, then set it</source>
        <translation>%1：当前已锁定，请停止采集后再设置</translation>
    </message>
    <message>
        <source>%1: it can only be read</source>
        <translation>%1：只能读取</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureModel</name>
    <message>
        <source>Feature</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeaturePanel</name>
    <message>
        <source>Features</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>搜索功能</translation>
    </message>
    <message>
        <source>Words in the name of a feature</source>
        <translation>功能名称中的词语</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Level of the features</source>
        <translation>功能级别</translation>
    </message>
    <message>
        <source>Which features are shown</source>
        <translation>显示哪些功能</translation>
    </message>
    <message>
        <source>Explanation of the feature</source>
        <translation>功能说明</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>关闭消息</translation>
    </message>
    <message>
        <source>There is no feature at this level.</source>
        <translation>此级别没有功能。</translation>
    </message>
    <message>
        <source>No feature at this level has &quot;%1&quot; in its name.</source>
        <translation>此级别没有名称包含“%1”的功能。</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureTexts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>不可读</translation>
    </message>
    <message>
        <source>can only be set</source>
        <translation>只能设置</translation>
    </message>
    <message>
        <source>%1 in steps of %2</source>
        <translation>%1，步长 %2</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>允许：%1</translation>
    </message>
    <message>
        <source>It is locked now.</source>
        <translation>当前已锁定。</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>名称：%1</translation>
    </message>
    <message>
        <source>%1, locked</source>
        <translation>%1（已锁定）</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no whole number; give one without points, commas and spaces</source>
        <translation>%1：“%2”不是整数，请输入不含小数点、逗号和空格的整数</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; cannot be read as a number; give one with a point for decimals and no other separators</source>
        <translation>%1：“%2”无法识别为数字，请用句点作小数点，且不要使用其他分隔符</translation>
    </message>
    <message>
        <source>It can only be read.</source>
        <translation>此项只读。</translation>
    </message>
    <message>
        <source>%1, read-only</source>
        <translation>%1（只读）</translation>
    </message>
    <message>
        <source>Executed</source>
        <translation>已执行</translation>
    </message>
</context>
<context>
    <name>Grabbing::CFiguresBar</name>
    <message>
        <source>Figures of the grab</source>
        <translation>采集统计</translation>
    </message>
</context>
<context>
    <name>Grabbing::CGrabEntries</name>
    <message>
        <source>Grab Single &amp;Image</source>
        <translation>采集单幅图像(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Grab Continuously</source>
        <translation>连续采集(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Stop Grabbing</source>
        <translation>停止采集(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Grabbing::Figures</name>
    <message>
        <source>Images: %1</source>
        <translation>图像：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 幅/秒</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageArea</name>
    <message>
        <source>Images</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Images of your cameras appear here</source>
        <translation>相机的图像将显示在此处</translation>
    </message>
    <message>
        <source>Open a camera: double-click it in the list of cameras, or choose it there and press Enter.
Then grab: F5 grabs until you stop, F6 grabs a single image.</source>
        <translation>打开相机：在相机列表中双击，或选中后按 Enter 键。
然后采集：按 F5 持续采集直到停止，按 F6 采集单幅图像。</translation>
    </message>
</context>
<context>
    <name>ImageView::CImagePane</name>
    <message>
        <source>Image of %1</source>
        <translation>%1 的图像</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>指针处的像素</translation>
    </message>
    <message>
        <source>Size, format and scale of the image</source>
        <translation>图像的尺寸、格式和缩放比例</translation>
    </message>
    <message>
        <source>Failed images: %1. The last one: %2</source>
        <translation>失败的图像：%1。最近一次：%2</translation>
    </message>
    <message>
        <source>No image yet</source>
        <translation>尚无图像</translation>
    </message>
    <message>
        <source>Grab to see an image</source>
        <translation>采集后即可看到图像</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageSaving</name>
    <message>
        <source>Save Image</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 图像 (*.png)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>TIFF 图像 (*.tif *.tiff)</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageViewPlugin</name>
    <message>
        <source>Image saved: %1</source>
        <translation>图像已保存：%1</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>保存图像</translation>
    </message>
</context>
<context>
    <name>ImageView::CViewEntries</name>
    <message>
        <source>&amp;Save Image...</source>
        <translation>保存图像(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Fit Image</source>
        <translation>适合窗口(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>100 %(&amp;1)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ImageView::Failure</name>
    <message>
        <source>The image failed with the code %1.</source>
        <translation>图像采集失败，代码为 %1。</translation>
    </message>
</context>
<context>
    <name>ImageView::File</name>
    <message>
        <source>%1 cannot be written (%2): choose another folder, or make room</source>
        <translation>无法写入 %1（%2）：请选择其他文件夹，或腾出空间</translation>
    </message>
    <message>
        <source>%1 is not the name of a PNG or TIFF file: give it one that ends with .png or .tif</source>
        <translation>%1 不是 PNG 或 TIFF 文件名：请使用以 .png 或 .tif 结尾的名称</translation>
    </message>
</context>
<context>
    <name>ImageView::Problem</name>
    <message>
        <source>What the camera sends is not an image: choose image data in its features.</source>
        <translation>相机发送的不是图像：请在其功能中选择图像数据。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown: choose another one in the camera&apos;s features, such as Mono8, BayerRG8 or RGB8.</source>
        <translation>无法显示像素格式 %1：请在相机的功能中选择其他格式，例如 Mono8、BayerRG8 或 RGB8。</translation>
    </message>
    <message>
        <source>The image has fewer bytes than its size and its pixel format %1 ask for: stop the grab and start it again.</source>
        <translation>图像的字节数少于其尺寸和像素格式 %1 所需：请停止采集后重新开始。</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CAboutDialog</name>
    <message>
        <source>About Nerix Viewer</source>
        <translation>关于 Nerix Viewer</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>复制版本信息(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>许可证(&amp;L)</translation>
    </message>
    <message>
        <source>Configures industrial cameras and grabs images from them.</source>
        <translation>配置工业相机并采集图像。</translation>
    </message>
    <message>
        <source>Copyright 2026 Ostrand. Free software under the MIT licence, without warranty of any kind.</source>
        <translation>Copyright 2026 Ostrand。本软件是依据 MIT 许可证发布的自由软件，不提供任何担保。</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpEntries</name>
    <message>
        <source>&amp;Contents</source>
        <translation>目录(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Features</source>
        <translation>功能(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Grabbing</source>
        <translation>采集(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Privacy Statement</source>
        <translation>隐私声明(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>许可证(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;About Nerix Viewer</source>
        <translation>关于 Nerix Viewer(&amp;A)</translation>
    </message>
    <message>
        <source>Ca&amp;meras</source>
        <translation>相机(&amp;M)</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpViewService</name>
    <message>
        <source>The document %1 cannot be read: install the viewer&apos;s documents again</source>
        <translation>无法读取文档 %1：请重新安装查看器的文档</translation>
    </message>
    <message>
        <source>No browser could be started for %1: choose a default browser, or open the address elsewhere</source>
        <translation>无法启动浏览器打开 %1：请选择默认浏览器，或在其他地方打开此地址</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpWindow</name>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Usual Size</source>
        <translation>默认大小</translation>
    </message>
    <message>
        <source>Find in this document</source>
        <translation>在此文档中查找</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>查找上一个</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>查找下一个</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>%1 - Help</source>
        <translation>%1 - 帮助</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>无法打开 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in this document</source>
        <translation>此文档中没有“%1”</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMainWindow</name>
    <message>
        <source>Nerix Viewer</source>
        <translation>Nerix Viewer</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>工具栏</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessageModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>次数</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清除(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CNerixViewerPlugin</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>相机(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外观(&amp;A)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>跟随系统(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>浅色(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>深色(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>重置布局(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CNerixWelcomePlugin</name>
    <message>
        <source>&amp;Welcome Screen</source>
        <translation>欢迎屏幕(&amp;W)</translation>
    </message>
    <message>
        <source>Data Privacy</source>
        <translation>数据隐私</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomePages</name>
    <message>
        <source>The page &quot;%1&quot; cannot be shown: %2</source>
        <translation>无法显示页面“%1”：%2</translation>
    </message>
    <message>
        <source>its plug-in did not set it up</source>
        <translation>其插件未完成设置</translation>
    </message>
    <message>
        <source>%1 is not an Item</source>
        <translation>%1 不是 Item</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomeWindow</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Please answer the question on &quot;%1&quot; first, then choose Apply. This window can be closed then.</source>
        <translation>请先回答“%1”中的问题，然后选择“应用”。之后即可关闭此窗口。</translation>
    </message>
    <message>
        <source>Welcome to the Nerix Viewer</source>
        <translation>欢迎使用 Nerix Viewer</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventModel</name>
    <message>
        <source>Delivered</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Handed Over</source>
        <translation>已移交</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventsTool</name>
    <message>
        <source>%1 cannot be started: install the viewer again</source>
        <translation>无法启动 %1：请重新安装查看器</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 cannot be replaced: choose another name</source>
        <translation>无法替换 %1：请选择其他名称</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogPlugin</name>
    <message>
        <source>&amp;Usage Data Log</source>
        <translation>使用数据日志(&amp;U)</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogWindow</name>
    <message>
        <source>All events are written to %1</source>
        <translation>所有事件已写入 %1</translation>
    </message>
    <message>
        <source>Usage Data Log</source>
        <translation>使用数据日志</translation>
    </message>
    <message>
        <source>&amp;Data Privacy</source>
        <translation>数据隐私(&amp;D)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Record of the selected event</source>
        <translation>所选事件的记录</translation>
    </message>
    <message>
        <source>Select an event to read the whole of its record.</source>
        <translation>选择一个事件即可阅读其完整记录。</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>导出(&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete All...</source>
        <translation>全部删除(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing is recorded: the plug-in that records is not there.</source>
        <translation>未记录任何内容：负责记录的插件不存在。</translation>
    </message>
    <message>
        <source>Nothing is recorded: you have not been asked yet, or have not answered.</source>
        <translation>未记录任何内容：尚未询问您，或您尚未回答。</translation>
    </message>
    <message>
        <source>You have agreed: how you use the viewer is recorded.</source>
        <translation>您已同意：将记录您使用查看器的情况。</translation>
    </message>
    <message>
        <source>You have not agreed: nothing is recorded.</source>
        <translation>您未同意：不会记录任何内容。</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>正在读取...</translation>
    </message>
    <message>
        <source>Nothing was ever recorded on this computer.</source>
        <translation>此计算机上从未记录过任何内容。</translation>
    </message>
    <message>
        <source>The events cannot be read: %1</source>
        <translation>无法读取事件：%1</translation>
    </message>
    <message>
        <source>Events: %1. Waiting: %2. Delivered: %3.</source>
        <translation>事件：%1。等待中：%2。已发送：%3。</translation>
    </message>
    <message>
        <source>%1 Found: %2.</source>
        <translation>%1 找到：%2。</translation>
    </message>
    <message>
        <source>Export All Events</source>
        <translation>导出所有事件</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>CSV for spreadsheets (*.csv)</source>
        <translation>电子表格用 CSV (*.csv)</translation>
    </message>
    <message>
        <source>Delete All Events</source>
        <translation>删除所有事件</translation>
    </message>
    <message>
        <source>Delete all %1 events? Those that wait will never be delivered. If you have agreed to recording, it goes on.</source>
        <translation>要删除全部 %1 个事件吗？等待中的事件将不会再发送。如果您已同意记录，记录仍会继续。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Hand Over the Waiting Events</source>
        <translation>移交等待中的事件</translation>
    </message>
    <message>
        <source>Events for the service (*.jsonl)</source>
        <translation>用于服务的事件 (*.jsonl)</translation>
    </message>
    <message>
        <source>The events that waited are written to %1, and will not be sent.</source>
        <translation>等待中的事件已写入 %1，不会再发送。</translation>
    </message>
    <message>
        <source>&amp;Hand Over...</source>
        <translation>移交(&amp;H)...</translation>
    </message>
    <message>
        <source>Writes the waiting events to a file for the service instead of sending them: for a computer without a network.</source>
        <translation>将等待中的事件写入供服务使用的文件，而不发送：适用于没有网络的计算机。</translation>
    </message>
    <message>
        <source>%1 Handed over: %2.</source>
        <translation>%1 已移交：%2。</translation>
    </message>
    <message>
        <source>You have no client ID.</source>
        <translation>您没有客户端 ID。</translation>
    </message>
    <message>
        <source>Your client ID: %1</source>
        <translation>您的客户端 ID：%1</translation>
    </message>
    <message>
        <source>No server: the events stay on this computer.</source>
        <translation>没有服务器：事件保留在此计算机上。</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>服务器：%1</translation>
    </message>
</context>
<context>
    <name>Policy::CUsagePolicy</name>
    <message>
        <source>The administrator of this computer has forbidden to send usage data: what is recorded stays here.</source>
        <translation>此计算机的管理员已禁止发送使用数据：记录的内容保留在此处。</translation>
    </message>
    <message>
        <source>The administrator of this computer has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>此计算机的管理员已关闭使用情况跟踪：不会记录或发送任何内容。</translation>
    </message>
    <message>
        <source>DO_NOT_TRACK in the environment has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>环境变量 DO_NOT_TRACK 已关闭使用情况跟踪：不会记录或发送任何内容。</translation>
    </message>
    <message>
        <source>Usage tracking is switched off: the administrator&apos;s file /etc/ruisdk/policy.json cannot be read. Nothing is recorded or sent.</source>
        <translation>使用情况跟踪已关闭：无法读取管理员的文件 /etc/ruisdk/policy.json。不会记录或发送任何内容。</translation>
    </message>
</context>
<context>
    <name>Windows::RegularFile</name>
    <message>
        <source>It is not a file of its own</source>
        <translation>它不是普通文件</translation>
    </message>
</context>
</TS>
