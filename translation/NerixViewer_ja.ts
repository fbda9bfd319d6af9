<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>ビューアー自体</translation>
    </message>
    <message>
        <source>Closing the cameras</source>
        <translation>カメラを閉じる処理</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot;</source>
        <translation>プラグイン「%1」</translation>
    </message>
    <message>
        <source>The viewer is being closed, but this does not come to an end: %1. You can wait for it, or end the viewer without it.</source>
        <translation>ビューアーを終了していますが、次のものが終わりません: %1。このまま待つか、待たずにビューアーを終了することができます。</translation>
    </message>
    <message>
        <source>Everything else is saved.</source>
        <translation>それ以外はすべて保存されています。</translation>
    </message>
    <message>
        <source>What these plug-ins keep at the end is not saved yet: %1.</source>
        <translation>次のプラグインが終了時に保存する内容は、まだ保存されていません: %1。</translation>
    </message>
    <message>
        <source>Nerix Viewer</source>
        <translation>Nerix Viewer</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>待つ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;End Now</source>
        <translation>今すぐ終了(&amp;E)</translation>
    </message>
    <message>
        <source>The script %1</source>
        <translation>スクリプト %1</translation>
    </message>
</context>
<context>
    <name>Application::Settings</name>
    <message>
        <source>The settings could not be kept in %1, so the next start has those of before, with your earlier answer about usage data: make room on the disk, or make the file writable.</source>
        <translation>設定を %1 に保存できませんでした。次回の起動時には、使用状況データについての以前の回答を含め、以前の設定が使われます。ディスクに空きを作るか、ファイルを書き込み可能にしてください。</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraCommands</name>
    <message>
        <source>&amp;Open Camera</source>
        <translation>カメラを開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close Camera</source>
        <translation>カメラを閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>%1 is grabbing: press %2 to close it (Camera &gt; Close Camera)</source>
        <translation>%1 は取り込み中です。閉じるには %2 を押してください（［カメラ］&gt;［カメラを閉じる］）</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraListModel</name>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraPanel</name>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Looking for cameras. Plug one in, and check its power and that its address is in a network of this computer.</source>
        <translation>カメラを探しています。カメラを接続し、電源が入っていること、およびアドレスがこのコンピューターのネットワーク内にあることを確認してください。</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CameraState</name>
    <message>
        <source>Free</source>
        <translation>使用可能</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>ほかで使用中</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>オープン</translation>
    </message>
    <message>
        <source>Grabbing</source>
        <translation>取り込み中</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>切断</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFile</name>
    <message>
        <source>file %1 cannot be written: %2; choose another folder</source>
        <translation>ファイル %1 に書き込めません：%2。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>file %1 holds no features: %2</source>
        <translation>ファイル %1 に機能が含まれていません：%2</translation>
    </message>
    <message>
        <source>file %1 cannot be read: %2; choose another file</source>
        <translation>ファイル %1 を読み込めません：%2。別のファイルを選んでください</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileEntries</name>
    <message>
        <source>Save &amp;Features...</source>
        <translation>機能を保存(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Load Features...</source>
        <translation>機能を読み込む(&amp;L)...</translation>
    </message>
    <message>
        <source>The features of %1 are saved in %2</source>
        <translation>%1 の機能を %2 に保存しました</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Save Features</source>
        <translation>機能を保存</translation>
    </message>
    <message>
        <source>Load Features</source>
        <translation>機能を読み込む</translation>
    </message>
    <message>
        <source>Features (*.%1)</source>
        <translation>機能 (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Saving the features of %1</source>
        <translation>%1 の機能を保存しています</translation>
    </message>
    <message>
        <source>Loading the features of %1</source>
        <translation>%1 の機能を読み込んでいます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1, features from %2: %3</source>
        <translation>%1、%2 の機能：%3</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileTask</name>
    <message>
        <source>%1 has no features now: open it first</source>
        <translation>%1 には現在機能がありません。先に開いてください</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReport</name>
    <message>
        <source>the camera made it &quot;%1&quot;</source>
        <translation>カメラが「%1」に変更しました</translation>
    </message>
    <message>
        <source>%1 set, %2 unchanged, %3 read-only, %4 not set</source>
        <translation>設定 %1、変更なし %2、読み取り専用 %3、未設定 %4</translation>
    </message>
    <message>
        <source>%1; cancelled</source>
        <translation>%1（キャンセル）</translation>
    </message>
    <message>
        <source>left alone: %1; the file is not from this camera, so set them by hand</source>
        <translation>変更しなかった項目：%1。このカメラから保存されたファイルではないため、手動で設定してください</translation>
    </message>
    <message>
        <source>left alone: %1; what belongs to the connection is never loaded</source>
        <translation>変更しなかった項目：%1。接続に属するものは読み込まれません</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReportDialog</name>
    <message>
        <source>Load Features</source>
        <translation>機能を読み込む</translation>
    </message>
    <message>
        <source>Some features of %1 do not have the value of the file.</source>
        <translation>%1 の一部の機能は、ファイルの値になっていません。</translation>
    </message>
    <message>
        <source>Features that were not set</source>
        <translation>設定されなかった機能</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureController</name>
    <message>
        <source>Select a camera to see its features.</source>
        <translation>カメラを選択すると、その機能が表示されます。</translation>
    </message>
    <message>
        <source>%1 is not connected.
Connect and open it to see its features.</source>
        <translation>%1 は接続されていません。
機能を表示するには、接続してから開いてください。</translation>
    </message>
    <message>
        <source>%1 is closed.
Open it to see its features.</source>
        <translation>%1 は閉じています。
機能を表示するには、開いてください。</translation>
    </message>
    <message>
        <source>Reading the features of %1...</source>
        <translation>%1 の機能を読み込んでいます...</translation>
    </message>
    <message>
        <source>The features of %1 cannot be read.
Close it and open it again.</source>
        <translation>%1 の機能を読み込めません。
いったん閉じてから、開き直してください。</translation>
    </message>
    <message>
        <source>%1: its bytes can only be set by a script</source>
        <translation>%1：バイト列はスクリプトでのみ設定できます</translation>
    </message>
    <message>
        <source>%1: the camera does not offer it now</source>
        <translation>%1：カメラは現在この機能を提供していません</translation>
    </message>
    <message>
        <source>%1: it is locked now; stop the grab, then set it</source>
        <translation>%1：現在ロックされています。取り込みを停止してから設定してください</translation>
    </message>
    <message>
        <source>%1: it can only be read</source>
        <translation>%1：読み取り専用です</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureModel</name>
    <message>
        <source>Feature</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeaturePanel</name>
    <message>
        <source>Features</source>
        <translation>機能</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>Words in the name of a feature</source>
        <translation>機能名に含まれる語</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>初級</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>上級</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>エキスパート</translation>
    </message>
    <message>
        <source>Level of the features</source>
        <translation>機能のレベル</translation>
    </message>
    <message>
        <source>Which features are shown</source>
        <translation>表示する機能</translation>
    </message>
    <message>
        <source>Explanation of the feature</source>
        <translation>機能の説明</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>メッセージを閉じる</translation>
    </message>
    <message>
        <source>There is no feature at this level.</source>
        <translation>このレベルの機能はありません。</translation>
    </message>
    <message>
        <source>No feature at this level has &quot;%1&quot; in its name.</source>
        <translation>このレベルには、名前に「%1」を含む機能がありません。</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureTexts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1～%2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>can only be set</source>
        <translation>設定のみ可能</translation>
    </message>
    <message>
        <source>%1 in steps of %2</source>
        <translation>%1（%2 刻み）</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>設定可能な値：%1</translation>
    </message>
    <message>
        <source>It is locked now.</source>
        <translation>現在ロックされています。</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>名前：%1</translation>
    </message>
    <message>
        <source>%1, locked</source>
        <translation>%1（ロック中）</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no whole number; give one without points, commas and spaces</source>
        <translation>%1：「%2」は整数ではありません。小数点、カンマ、スペースを含まない整数を入力してください</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; cannot be read as a number; give one with a point for decimals and no other separators</source>
        <translation>%1：「%2」を数値として読み取れません。小数点にはピリオドを使い、ほかの区切り文字を入れずに入力してください</translation>
    </message>
    <message>
        <source>It can only be read.</source>
        <translation>読み取り専用です。</translation>
    </message>
    <message>
        <source>%1, read-only</source>
        <translation>%1（読み取り専用）</translation>
    </message>
    <message>
        <source>Executed</source>
        <translation>実行しました</translation>
    </message>
</context>
<context>
    <name>Grabbing::CFiguresBar</name>
    <message>
        <source>Figures of the grab</source>
        <translation>取り込みの統計</translation>
    </message>
</context>
<context>
    <name>Grabbing::CGrabEntries</name>
    <message>
        <source>Grab Single &amp;Image</source>
        <translation>1 枚取り込む(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Grab Continuously</source>
        <translation>連続取り込み(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Stop Grabbing</source>
        <translation>取り込みを停止(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Grabbing::Figures</name>
    <message>
        <source>Images: %1</source>
        <translation>画像：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失敗：%1</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1 枚/秒</translation>
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
        <translation>画像</translation>
    </message>
    <message>
        <source>Images of your cameras appear here</source>
        <translation>ここにカメラの画像が表示されます</translation>
    </message>
    <message>
        <source>Open a camera: double-click it in the list of cameras, or choose it there and press Enter.
Then grab: F5 grabs until you stop, F6 grabs a single image.</source>
        <translation>カメラを開く：カメラの一覧でダブルクリックするか、選択して Enter キーを押します。
次に取り込む：F5 キーで停止するまで連続して、F6 キーで 1 枚取り込みます。</translation>
    </message>
</context>
<context>
    <name>ImageView::CImagePane</name>
    <message>
        <source>Image of %1</source>
        <translation>%1 の画像</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>ポインター位置の画素</translation>
    </message>
    <message>
        <source>Size, format and scale of the image</source>
        <translation>画像のサイズ、フォーマット、倍率</translation>
    </message>
    <message>
        <source>Failed images: %1. The last one: %2</source>
        <translation>失敗した画像：%1。最後の失敗：%2</translation>
    </message>
    <message>
        <source>No image yet</source>
        <translation>画像はまだありません</translation>
    </message>
    <message>
        <source>Grab to see an image</source>
        <translation>取り込むと画像が表示されます</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageSaving</name>
    <message>
        <source>Save Image</source>
        <translation>画像を保存</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 画像 (*.png)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>TIFF 画像 (*.tif *.tiff)</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageViewPlugin</name>
    <message>
        <source>Image saved: %1</source>
        <translation>画像を保存しました：%1</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>画像を保存</translation>
    </message>
</context>
<context>
    <name>ImageView::CViewEntries</name>
    <message>
        <source>&amp;Save Image...</source>
        <translation>画像を保存(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Fit Image</source>
        <translation>画像全体を表示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>100 %(&amp;1)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ImageView::Failure</name>
    <message>
        <source>The image failed with the code %1.</source>
        <translation>画像の取り込みに失敗しました（コード %1）。</translation>
    </message>
</context>
<context>
    <name>ImageView::File</name>
    <message>
        <source>%1 cannot be written (%2): choose another folder, or make room</source>
        <translation>%1 に書き込めません（%2）。別のフォルダーを選ぶか、空き容量を増やしてください</translation>
    </message>
    <message>
        <source>%1 is not the name of a PNG or TIFF file: give it one that ends with .png or .tif</source>
        <translation>%1 は PNG または TIFF のファイル名ではありません。.png または .tif で終わる名前を付けてください</translation>
    </message>
</context>
<context>
    <name>ImageView::Problem</name>
    <message>
        <source>What the camera sends is not an image: choose image data in its features.</source>
        <translation>カメラが送信しているのは画像ではありません。カメラの機能で画像データを選択してください。</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown: choose another one in the camera&apos;s features, such as Mono8, BayerRG8 or RGB8.</source>
        <translation>ピクセルフォーマット %1 は表示できません。カメラの機能で、Mono8、BayerRG8、RGB8 など別のフォーマットを選択してください。</translation>
    </message>
    <message>
        <source>The image has fewer bytes than its size and its pixel format %1 ask for: stop the grab and start it again.</source>
        <translation>画像のバイト数が、サイズとピクセルフォーマット %1 に必要な数に足りません。取り込みを停止して、もう一度開始してください。</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CAboutDialog</name>
    <message>
        <source>About Nerix Viewer</source>
        <translation>Nerix Viewer について</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>バージョンをコピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>ライセンス(&amp;L)</translation>
    </message>
    <message>
        <source>Configures industrial cameras and grabs images from them.</source>
        <translation>産業用カメラを設定し、画像を取り込みます。</translation>
    </message>
    <message>
        <source>Copyright 2026 Ostrand. Free software under the MIT licence, without warranty of any kind.</source>
        <translation>Copyright 2026 Ostrand. MIT ライセンスに基づくフリーソフトウェアであり、いかなる保証もありません。</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpEntries</name>
    <message>
        <source>&amp;Contents</source>
        <translation>目次(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Features</source>
        <translation>機能(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Grabbing</source>
        <translation>取り込み(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Privacy Statement</source>
        <translation>プライバシーステートメント(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>ライセンス(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;About Nerix Viewer</source>
        <translation>Nerix Viewer について(&amp;A)</translation>
    </message>
    <message>
        <source>Ca&amp;meras</source>
        <translation>カメラ(&amp;M)</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpViewService</name>
    <message>
        <source>The document %1 cannot be read: install the viewer&apos;s documents again</source>
        <translation>ドキュメント %1 を読み取れません。ビューアのドキュメントをインストールし直してください</translation>
    </message>
    <message>
        <source>No browser could be started for %1: choose a default browser, or open the address elsewhere</source>
        <translation>%1 を開くブラウザーを起動できませんでした。既定のブラウザーを選ぶか、別の場所でこのアドレスを開いてください</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpWindow</name>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進む</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Usual Size</source>
        <translation>標準サイズ</translation>
    </message>
    <message>
        <source>Find in this document</source>
        <translation>この文書内を検索</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>前を検索</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>次を検索</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>%1 - Help</source>
        <translation>%1 - ヘルプ</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 を開けません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in this document</source>
        <translation>この文書に「%1」はありません</translation>
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
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessageModel</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>回数</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>クリア(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CNerixViewerPlugin</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外観(&amp;A)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>システムに合わせる(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>ダーク(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>レイアウトをリセット(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>言語(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CNerixWelcomePlugin</name>
    <message>
        <source>&amp;Welcome Screen</source>
        <translation>ようこそ画面(&amp;W)</translation>
    </message>
    <message>
        <source>Data Privacy</source>
        <translation>データプライバシー</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomePages</name>
    <message>
        <source>The page &quot;%1&quot; cannot be shown: %2</source>
        <translation>ページ「%1」を表示できません：%2</translation>
    </message>
    <message>
        <source>its plug-in did not set it up</source>
        <translation>プラグインがページを準備しませんでした</translation>
    </message>
    <message>
        <source>%1 is not an Item</source>
        <translation>%1 は Item ではありません</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomeWindow</name>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Please answer the question on &quot;%1&quot; first, then choose Apply. This window can be closed then.</source>
        <translation>先に「%1」の質問に回答して「適用」を選んでください。その後、このウィンドウを閉じることができます。</translation>
    </message>
    <message>
        <source>Welcome to the Nerix Viewer</source>
        <translation>Nerix Viewer へようこそ</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventModel</name>
    <message>
        <source>Delivered</source>
        <translation>送信済み</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>記録内容</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Handed Over</source>
        <translation>引き渡し済み</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventsTool</name>
    <message>
        <source>%1 cannot be started: install the viewer again</source>
        <translation>%1 を起動できません。ビューアーを再インストールしてください</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 に書き込めません：%2</translation>
    </message>
    <message>
        <source>%1 cannot be replaced: choose another name</source>
        <translation>%1 を置き換えられません。別の名前を選んでください</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogPlugin</name>
    <message>
        <source>&amp;Usage Data Log</source>
        <translation>使用状況データログ(&amp;U)</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogWindow</name>
    <message>
        <source>All events are written to %1</source>
        <translation>すべてのイベントを %1 に書き出しました</translation>
    </message>
    <message>
        <source>Usage Data Log</source>
        <translation>使用状況データログ</translation>
    </message>
    <message>
        <source>&amp;Data Privacy</source>
        <translation>データプライバシー(&amp;D)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>イベント</translation>
    </message>
    <message>
        <source>Record of the selected event</source>
        <translation>選択したイベントの記録内容</translation>
    </message>
    <message>
        <source>Select an event to read the whole of its record.</source>
        <translation>イベントを選択すると、記録内容の全文が表示されます。</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>書き出す(&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete All...</source>
        <translation>すべて削除(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing is recorded: the plug-in that records is not there.</source>
        <translation>何も記録されていません。記録を行うプラグインがありません。</translation>
    </message>
    <message>
        <source>Nothing is recorded: you have not been asked yet, or have not answered.</source>
        <translation>何も記録されていません。まだ質問が表示されていないか、回答されていません。</translation>
    </message>
    <message>
        <source>You have agreed: how you use the viewer is recorded.</source>
        <translation>同意済みです。ビューアーの使用状況が記録されます。</translation>
    </message>
    <message>
        <source>You have not agreed: nothing is recorded.</source>
        <translation>同意されていません。何も記録されません。</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Nothing was ever recorded on this computer.</source>
        <translation>このコンピューターにはまだ何も記録されていません。</translation>
    </message>
    <message>
        <source>The events cannot be read: %1</source>
        <translation>イベントを読み込めません：%1</translation>
    </message>
    <message>
        <source>Events: %1. Waiting: %2. Delivered: %3.</source>
        <translation>イベント：%1。待機中：%2。送信済み：%3。</translation>
    </message>
    <message>
        <source>%1 Found: %2.</source>
        <translation>%1 検索結果：%2。</translation>
    </message>
    <message>
        <source>Export All Events</source>
        <translation>すべてのイベントを書き出す</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>CSV for spreadsheets (*.csv)</source>
        <translation>表計算用 CSV (*.csv)</translation>
    </message>
    <message>
        <source>Delete All Events</source>
        <translation>すべてのイベントを削除</translation>
    </message>
    <message>
        <source>Delete all %1 events? Those that wait will never be delivered. If you have agreed to recording, it goes on.</source>
        <translation>%1 件のイベントをすべて削除しますか？待機中のイベントは送信されなくなります。記録に同意している場合、記録は継続されます。</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Hand Over the Waiting Events</source>
        <translation>待機中のイベントを引き渡す</translation>
    </message>
    <message>
        <source>Events for the service (*.jsonl)</source>
        <translation>サービス用のイベント (*.jsonl)</translation>
    </message>
    <message>
        <source>The events that waited are written to %1, and will not be sent.</source>
        <translation>待機中だったイベントを %1 に書き出しました。送信はされません。</translation>
    </message>
    <message>
        <source>&amp;Hand Over...</source>
        <translation>引き渡す(&amp;H)...</translation>
    </message>
    <message>
        <source>Writes the waiting events to a file for the service instead of sending them: for a computer without a network.</source>
        <translation>待機中のイベントを送信せずに、サービス用のファイルへ書き出します。ネットワークのないコンピューター向けです。</translation>
    </message>
    <message>
        <source>%1 Handed over: %2.</source>
        <translation>%1 引き渡し済み：%2。</translation>
    </message>
    <message>
        <source>You have no client ID.</source>
        <translation>クライアント ID はありません。</translation>
    </message>
    <message>
        <source>Your client ID: %1</source>
        <translation>クライアント ID：%1</translation>
    </message>
    <message>
        <source>No server: the events stay on this computer.</source>
        <translation>サーバーなし：イベントはこのコンピューターに残ります。</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>サーバー：%1</translation>
    </message>
</context>
<context>
    <name>Policy::CUsagePolicy</name>
    <message>
        <source>The administrator of this computer has forbidden to send usage data: what is recorded stays here.</source>
        <translation>このコンピューターの管理者が使用状況データの送信を禁止しています。記録された内容はここに残ります。</translation>
    </message>
    <message>
        <source>The administrator of this computer has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>このコンピューターの管理者が使用状況の追跡を無効にしています。何も記録も送信もされません。</translation>
    </message>
    <message>
        <source>DO_NOT_TRACK in the environment has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>環境変数 DO_NOT_TRACK により使用状況の追跡が無効になっています。何も記録も送信もされません。</translation>
    </message>
    <message>
        <source>Usage tracking is switched off: the administrator&apos;s file /etc/ruisdk/policy.json cannot be read. Nothing is recorded or sent.</source>
        <translation>使用状況の追跡は無効です。管理者のファイル /etc/ruisdk/policy.json を読み取れません。何も記録も送信もされません。</translation>
    </message>
</context>
<context>
    <name>Windows::RegularFile</name>
    <message>
        <source>It is not a file of its own</source>
        <translation>通常のファイルではありません</translation>
    </message>
</context>
</TS>
