<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
        <translation>뷰어 자체</translation>
    </message>
    <message>
        <source>Closing the cameras</source>
        <translation>카메라 닫기</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot;</source>
        <translation>플러그인 &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The viewer is being closed, but this does not come to an end: %1. You can wait for it, or end the viewer without it.</source>
        <translation>뷰어를 종료하는 중이지만 다음 항목이 끝나지 않습니다: %1. 계속 기다리거나, 기다리지 않고 뷰어를 종료할 수 있습니다.</translation>
    </message>
    <message>
        <source>Everything else is saved.</source>
        <translation>그 밖의 것은 모두 저장되었습니다.</translation>
    </message>
    <message>
        <source>What these plug-ins keep at the end is not saved yet: %1.</source>
        <translation>다음 플러그인이 종료할 때 저장하는 내용은 아직 저장되지 않았습니다: %1.</translation>
    </message>
    <message>
        <source>Nerix Viewer</source>
        <translation>Nerix Viewer</translation>
    </message>
    <message>
        <source>&amp;Wait</source>
        <translation>기다리기(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;End Now</source>
        <translation>지금 종료(&amp;E)</translation>
    </message>
    <message>
        <source>The script %1</source>
        <translation>스크립트 %1</translation>
    </message>
</context>
<context>
    <name>Application::Settings</name>
    <message>
        <source>The settings could not be kept in %1, so the next start has those of before, with your earlier answer about usage data: make room on the disk, or make the file writable.</source>
        <translation>설정을 %1에 저장하지 못했습니다. 다음에 시작할 때는 사용 데이터에 대한 이전 답변을 포함하여 이전 설정이 사용됩니다. 디스크에 공간을 확보하거나 파일을 쓸 수 있게 하세요.</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraCommands</name>
    <message>
        <source>&amp;Open Camera</source>
        <translation>카메라 열기(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close Camera</source>
        <translation>카메라 닫기(&amp;C)</translation>
    </message>
    <message>
        <source>%1 is grabbing: press %2 to close it (Camera &gt; Close Camera)</source>
        <translation>%1은(는) 획득 중입니다. 닫으려면 %2 키를 누르십시오(카메라 &gt; 카메라 닫기)</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraListModel</name>
    <message>
        <source>Camera</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CCameraPanel</name>
    <message>
        <source>Cameras</source>
        <translation>카메라</translation>
    </message>
    <message>
        <source>Looking for cameras. Plug one in, and check its power and that its address is in a network of this computer.</source>
        <translation>카메라를 찾고 있습니다. 카메라를 연결하고, 전원이 켜져 있는지와 주소가 이 컴퓨터의 네트워크에 속하는지 확인하세요.</translation>
    </message>
</context>
<context>
    <name>CameraSelector::CameraState</name>
    <message>
        <source>Free</source>
        <translation>사용 가능</translation>
    </message>
    <message>
        <source>In use elsewhere</source>
        <translation>다른 곳에서 사용 중</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열림</translation>
    </message>
    <message>
        <source>Grabbing</source>
        <translation>획득 중</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>연결 끊김</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFile</name>
    <message>
        <source>file %1 cannot be written: %2; choose another folder</source>
        <translation>파일 %1에 쓸 수 없습니다: %2. 다른 폴더를 선택하세요</translation>
    </message>
    <message>
        <source>file %1 holds no features: %2</source>
        <translation>파일 %1에 기능이 없습니다: %2</translation>
    </message>
    <message>
        <source>file %1 cannot be read: %2; choose another file</source>
        <translation>파일 %1을(를) 읽을 수 없습니다: %2. 다른 파일을 선택하세요</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileEntries</name>
    <message>
        <source>Save &amp;Features...</source>
        <translation>기능 저장(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Load Features...</source>
        <translation>기능 불러오기(&amp;L)...</translation>
    </message>
    <message>
        <source>The features of %1 are saved in %2</source>
        <translation>%1의 기능을 %2에 저장했습니다</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Save Features</source>
        <translation>기능 저장</translation>
    </message>
    <message>
        <source>Load Features</source>
        <translation>기능 불러오기</translation>
    </message>
    <message>
        <source>Features (*.%1)</source>
        <translation>기능 (*.%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>모든 파일 (*)</translation>
    </message>
    <message>
        <source>Saving the features of %1</source>
        <translation>%1의 기능을 저장하는 중</translation>
    </message>
    <message>
        <source>Loading the features of %1</source>
        <translation>%1의 기능을 불러오는 중</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>%1, features from %2: %3</source>
        <translation>%1, %2의 기능: %3</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CFeatureFileTask</name>
    <message>
        <source>%1 has no features now: open it first</source>
        <translation>%1에는 지금 기능이 없습니다. 먼저 여세요</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReport</name>
    <message>
        <source>the camera made it &quot;%1&quot;</source>
        <translation>카메라가 &quot;%1&quot;(으)로 변경했습니다</translation>
    </message>
    <message>
        <source>%1 set, %2 unchanged, %3 read-only, %4 not set</source>
        <translation>설정 %1, 변경 없음 %2, 읽기 전용 %3, 설정 안 됨 %4</translation>
    </message>
    <message>
        <source>%1; cancelled</source>
        <translation>%1 (취소됨)</translation>
    </message>
    <message>
        <source>left alone: %1; the file is not from this camera, so set them by hand</source>
        <translation>그대로 둔 항목: %1. 이 카메라에서 저장한 파일이 아니므로 직접 설정하십시오</translation>
    </message>
    <message>
        <source>left alone: %1; what belongs to the connection is never loaded</source>
        <translation>그대로 둔 항목: %1. 연결에 속하는 것은 불러오지 않습니다</translation>
    </message>
</context>
<context>
    <name>FeatureFiles::CLoadReportDialog</name>
    <message>
        <source>Load Features</source>
        <translation>기능 불러오기</translation>
    </message>
    <message>
        <source>Some features of %1 do not have the value of the file.</source>
        <translation>%1의 일부 기능이 파일의 값과 다릅니다.</translation>
    </message>
    <message>
        <source>Features that were not set</source>
        <translation>설정되지 않은 기능</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>이유</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureController</name>
    <message>
        <source>Select a camera to see its features.</source>
        <translation>카메라를 선택하면 해당 기능이 표시됩니다.</translation>
    </message>
    <message>
        <source>%1 is not connected.
Connect and open it to see its features.</source>
        <translation>%1이(가) 연결되어 있지 않습니다.
기능을 보려면 연결한 다음 여세요.</translation>
    </message>
    <message>
        <source>%1 is closed.
Open it to see its features.</source>
        <translation>%1이(가) 닫혀 있습니다.
기능을 보려면 여세요.</translation>
    </message>
    <message>
        <source>Reading the features of %1...</source>
        <translation>%1의 기능을 읽는 중...</translation>
    </message>
    <message>
        <source>The features of %1 cannot be read.
Close it and open it again.</source>
        <translation>%1의 기능을 읽을 수 없습니다.
닫았다가 다시 여세요.</translation>
    </message>
    <message>
        <source>%1: its bytes can only be set by a script</source>
        <translation>%1: 바이트 값은 스크립트로만 설정할 수 있습니다</translation>
    </message>
    <message>
        <source>%1: the camera does not offer it now</source>
        <translation>%1: 현재 카메라에서 제공하지 않습니다</translation>
    </message>
    <message>
        <source>%1: it is locked now; stop the grab, then set it</source>
        <translation>%1: 현재 잠겨 있습니다. 획득을 중지한 다음 설정하세요</translation>
    </message>
    <message>
        <source>%1: it can only be read</source>
        <translation>%1: 읽기 전용입니다</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureModel</name>
    <message>
        <source>Feature</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeaturePanel</name>
    <message>
        <source>Features</source>
        <translation>기능</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>기능 검색</translation>
    </message>
    <message>
        <source>Words in the name of a feature</source>
        <translation>기능 이름에 포함된 단어</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>초급</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>고급</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>전문가</translation>
    </message>
    <message>
        <source>Level of the features</source>
        <translation>기능 수준</translation>
    </message>
    <message>
        <source>Which features are shown</source>
        <translation>표시할 기능</translation>
    </message>
    <message>
        <source>Explanation of the feature</source>
        <translation>기능 설명</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Dismiss the message</source>
        <translation>메시지 닫기</translation>
    </message>
    <message>
        <source>There is no feature at this level.</source>
        <translation>이 수준의 기능이 없습니다.</translation>
    </message>
    <message>
        <source>No feature at this level has &quot;%1&quot; in its name.</source>
        <translation>이 수준에는 이름에 &quot;%1&quot;이(가) 포함된 기능이 없습니다.</translation>
    </message>
</context>
<context>
    <name>FeatureTree::CFeatureTexts</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ~ %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>켜짐</translation>
    </message>
    <message>
        <source>off</source>
        <translation>꺼짐</translation>
    </message>
    <message>
        <source>not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>실행</translation>
    </message>
    <message>
        <source>not readable</source>
        <translation>읽을 수 없음</translation>
    </message>
    <message>
        <source>can only be set</source>
        <translation>설정만 가능</translation>
    </message>
    <message>
        <source>%1 in steps of %2</source>
        <translation>%1 (%2 단위)</translation>
    </message>
    <message>
        <source>Allowed: %1</source>
        <translation>허용 값: %1</translation>
    </message>
    <message>
        <source>It is locked now.</source>
        <translation>현재 잠겨 있습니다.</translation>
    </message>
    <message>
        <source>Name: %1</source>
        <translation>이름: %1</translation>
    </message>
    <message>
        <source>%1, locked</source>
        <translation>%1 (잠김)</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is no whole number; give one without points, commas and spaces</source>
        <translation>%1: &quot;%2&quot;은(는) 정수가 아닙니다. 소수점, 쉼표, 공백 없이 정수를 입력하세요</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; cannot be read as a number; give one with a point for decimals and no other separators</source>
        <translation>%1: &quot;%2&quot;을(를) 숫자로 읽을 수 없습니다. 소수점은 마침표로 쓰고 다른 구분 기호 없이 입력하세요</translation>
    </message>
    <message>
        <source>It can only be read.</source>
        <translation>읽기 전용입니다.</translation>
    </message>
    <message>
        <source>%1, read-only</source>
        <translation>%1 (읽기 전용)</translation>
    </message>
    <message>
        <source>Executed</source>
        <translation>실행됨</translation>
    </message>
</context>
<context>
    <name>Grabbing::CFiguresBar</name>
    <message>
        <source>Figures of the grab</source>
        <translation>획득 통계</translation>
    </message>
</context>
<context>
    <name>Grabbing::CGrabEntries</name>
    <message>
        <source>Grab Single &amp;Image</source>
        <translation>한 장 획득(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Grab Continuously</source>
        <translation>연속 획득(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Stop Grabbing</source>
        <translation>획득 중지(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Grabbing::Figures</name>
    <message>
        <source>Images: %1</source>
        <translation>이미지: %1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>실패: %1</translation>
    </message>
    <message>
        <source>%1 images/s</source>
        <translation>%1장/초</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/초</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageArea</name>
    <message>
        <source>Images</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Images of your cameras appear here</source>
        <translation>여기에 카메라 이미지가 표시됩니다</translation>
    </message>
    <message>
        <source>Open a camera: double-click it in the list of cameras, or choose it there and press Enter.
Then grab: F5 grabs until you stop, F6 grabs a single image.</source>
        <translation>카메라 열기: 카메라 목록에서 두 번 클릭하거나, 선택한 다음 Enter 키를 누르세요.
그런 다음 획득: F5 키는 중지할 때까지 계속, F6 키는 한 장만 획득합니다.</translation>
    </message>
</context>
<context>
    <name>ImageView::CImagePane</name>
    <message>
        <source>Image of %1</source>
        <translation>%1의 이미지</translation>
    </message>
    <message>
        <source>Pixel under the pointer</source>
        <translation>포인터 위치의 픽셀</translation>
    </message>
    <message>
        <source>Size, format and scale of the image</source>
        <translation>이미지의 크기, 형식, 배율</translation>
    </message>
    <message>
        <source>Failed images: %1. The last one: %2</source>
        <translation>실패한 이미지: %1. 마지막 실패: %2</translation>
    </message>
    <message>
        <source>No image yet</source>
        <translation>아직 이미지가 없습니다</translation>
    </message>
    <message>
        <source>Grab to see an image</source>
        <translation>획득하면 이미지가 표시됩니다</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageSaving</name>
    <message>
        <source>Save Image</source>
        <translation>이미지 저장</translation>
    </message>
    <message>
        <source>PNG image (*.png)</source>
        <translation>PNG 이미지 (*.png)</translation>
    </message>
    <message>
        <source>TIFF image (*.tif *.tiff)</source>
        <translation>TIFF 이미지 (*.tif *.tiff)</translation>
    </message>
</context>
<context>
    <name>ImageView::CImageViewPlugin</name>
    <message>
        <source>Image saved: %1</source>
        <translation>이미지를 저장했습니다: %1</translation>
    </message>
    <message>
        <source>Save Image</source>
        <translation>이미지 저장</translation>
    </message>
</context>
<context>
    <name>ImageView::CViewEntries</name>
    <message>
        <source>&amp;Save Image...</source>
        <translation>이미지 저장(&amp;S)...</translation>
    </message>
    <message>
        <source>&amp;Fit Image</source>
        <translation>이미지 맞춤(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>100 %(&amp;1)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>확대(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>축소(&amp;O)</translation>
    </message>
</context>
<context>
    <name>ImageView::Failure</name>
    <message>
        <source>The image failed with the code %1.</source>
        <translation>이미지 획득에 실패했습니다(코드 %1).</translation>
    </message>
</context>
<context>
    <name>ImageView::File</name>
    <message>
        <source>%1 cannot be written (%2): choose another folder, or make room</source>
        <translation>%1에 쓸 수 없습니다(%2). 다른 폴더를 선택하거나 공간을 확보하세요</translation>
    </message>
    <message>
        <source>%1 is not the name of a PNG or TIFF file: give it one that ends with .png or .tif</source>
        <translation>%1은(는) PNG 또는 TIFF 파일 이름이 아닙니다. .png 또는 .tif로 끝나는 이름을 지정하세요</translation>
    </message>
</context>
<context>
    <name>ImageView::Problem</name>
    <message>
        <source>What the camera sends is not an image: choose image data in its features.</source>
        <translation>카메라가 보내는 데이터는 이미지가 아닙니다. 카메라 기능에서 이미지 데이터를 선택하세요.</translation>
    </message>
    <message>
        <source>The pixel format %1 cannot be shown: choose another one in the camera&apos;s features, such as Mono8, BayerRG8 or RGB8.</source>
        <translation>픽셀 형식 %1은(는) 표시할 수 없습니다. 카메라 기능에서 Mono8, BayerRG8, RGB8 등 다른 형식을 선택하세요.</translation>
    </message>
    <message>
        <source>The image has fewer bytes than its size and its pixel format %1 ask for: stop the grab and start it again.</source>
        <translation>이미지의 바이트 수가 크기와 픽셀 형식 %1에 필요한 것보다 적습니다. 획득을 중지했다가 다시 시작하세요.</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CAboutDialog</name>
    <message>
        <source>About Nerix Viewer</source>
        <translation>Nerix Viewer 정보</translation>
    </message>
    <message>
        <source>&amp;Copy Versions</source>
        <translation>버전 복사(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>라이선스(&amp;L)</translation>
    </message>
    <message>
        <source>Configures industrial cameras and grabs images from them.</source>
        <translation>산업용 카메라를 설정하고 이미지를 획득합니다.</translation>
    </message>
    <message>
        <source>Copyright 2026 Ostrand. Free software under the MIT licence, without warranty of any kind.</source>
        <translation>Copyright 2026 Ostrand. MIT 라이선스에 따른 자유 소프트웨어이며, 어떠한 보증도 제공하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpEntries</name>
    <message>
        <source>&amp;Contents</source>
        <translation>목차(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Features</source>
        <translation>기능(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Grabbing</source>
        <translation>획득(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Privacy Statement</source>
        <translation>개인정보 보호정책(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Licences</source>
        <translation>라이선스(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;About Nerix Viewer</source>
        <translation>Nerix Viewer 정보(&amp;A)</translation>
    </message>
    <message>
        <source>Ca&amp;meras</source>
        <translation>카메라(&amp;M)</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpViewService</name>
    <message>
        <source>The document %1 cannot be read: install the viewer&apos;s documents again</source>
        <translation>문서 %1을(를) 읽을 수 없습니다. 뷰어의 문서를 다시 설치하세요</translation>
    </message>
    <message>
        <source>No browser could be started for %1: choose a default browser, or open the address elsewhere</source>
        <translation>%1을(를) 열 브라우저를 시작할 수 없습니다. 기본 브라우저를 선택하거나 다른 곳에서 이 주소를 여세요</translation>
    </message>
</context>
<context>
    <name>Plugin::Help::CHelpWindow</name>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>앞으로</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>목차</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Usual Size</source>
        <translation>기본 크기</translation>
    </message>
    <message>
        <source>Find in this document</source>
        <translation>이 문서에서 찾기</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>이전 찾기</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>다음 찾기</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>%1 - Help</source>
        <translation>%1 - 도움말</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1을(를) 열 수 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in this document</source>
        <translation>이 문서에 &quot;%1&quot;이(가) 없습니다</translation>
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
        <translation>도구 모음</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessageModel</name>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>횟수</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>메시지</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CMessagePanel</name>
    <message>
        <source>Messages</source>
        <translation>메시지</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>복사(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>지우기(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixViewer::CNerixViewerPlugin</name>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>카메라(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>모양(&amp;A)</translation>
    </message>
    <message>
        <source>As the &amp;System</source>
        <translation>시스템 설정 사용(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>밝게(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>어둡게(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>레이아웃 초기화(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>언어(&amp;L)</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CNerixWelcomePlugin</name>
    <message>
        <source>&amp;Welcome Screen</source>
        <translation>시작 화면(&amp;W)</translation>
    </message>
    <message>
        <source>Data Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomePages</name>
    <message>
        <source>The page &quot;%1&quot; cannot be shown: %2</source>
        <translation>&quot;%1&quot; 페이지를 표시할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>its plug-in did not set it up</source>
        <translation>플러그인이 페이지를 준비하지 않았습니다</translation>
    </message>
    <message>
        <source>%1 is not an Item</source>
        <translation>%1은(는) Item이 아닙니다</translation>
    </message>
</context>
<context>
    <name>Plugin::NerixWelcome::CWelcomeWindow</name>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Please answer the question on &quot;%1&quot; first, then choose Apply. This window can be closed then.</source>
        <translation>먼저 &quot;%1&quot;의 질문에 답한 다음 적용을 선택하세요. 그러면 이 창을 닫을 수 있습니다.</translation>
    </message>
    <message>
        <source>Welcome to the Nerix Viewer</source>
        <translation>Nerix Viewer 시작 화면</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventModel</name>
    <message>
        <source>Delivered</source>
        <translation>전송됨</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시각</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>범주</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>기록 내용</translation>
    </message>
    <message>
        <source>State</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Handed Over</source>
        <translation>전달됨</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CEventsTool</name>
    <message>
        <source>%1 cannot be started: install the viewer again</source>
        <translation>%1을(를) 시작할 수 없습니다. 뷰어를 다시 설치하세요</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1에 쓸 수 없습니다: %2</translation>
    </message>
    <message>
        <source>%1 cannot be replaced: choose another name</source>
        <translation>%1을(를) 바꿀 수 없습니다. 다른 이름을 선택하세요</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogPlugin</name>
    <message>
        <source>&amp;Usage Data Log</source>
        <translation>사용 데이터 로그(&amp;U)</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageDataLog::CUsageDataLogWindow</name>
    <message>
        <source>All events are written to %1</source>
        <translation>모든 이벤트를 %1에 저장했습니다</translation>
    </message>
    <message>
        <source>Usage Data Log</source>
        <translation>사용 데이터 로그</translation>
    </message>
    <message>
        <source>&amp;Data Privacy</source>
        <translation>개인정보 보호(&amp;D)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>검색</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>이벤트</translation>
    </message>
    <message>
        <source>Record of the selected event</source>
        <translation>선택한 이벤트의 기록 내용</translation>
    </message>
    <message>
        <source>Select an event to read the whole of its record.</source>
        <translation>이벤트를 선택하면 기록 내용 전체가 표시됩니다.</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>내보내기(&amp;E)...</translation>
    </message>
    <message>
        <source>De&amp;lete All...</source>
        <translation>모두 삭제(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
    <message>
        <source>Nothing is recorded: the plug-in that records is not there.</source>
        <translation>아무것도 기록되지 않습니다. 기록하는 플러그인이 없습니다.</translation>
    </message>
    <message>
        <source>Nothing is recorded: you have not been asked yet, or have not answered.</source>
        <translation>아무것도 기록되지 않습니다. 아직 질문을 받지 않았거나 답하지 않았습니다.</translation>
    </message>
    <message>
        <source>You have agreed: how you use the viewer is recorded.</source>
        <translation>동의하셨습니다. 뷰어 사용 방식이 기록됩니다.</translation>
    </message>
    <message>
        <source>You have not agreed: nothing is recorded.</source>
        <translation>동의하지 않으셨습니다. 아무것도 기록되지 않습니다.</translation>
    </message>
    <message>
        <source>Reading...</source>
        <translation>읽는 중...</translation>
    </message>
    <message>
        <source>Nothing was ever recorded on this computer.</source>
        <translation>이 컴퓨터에는 아무것도 기록된 적이 없습니다.</translation>
    </message>
    <message>
        <source>The events cannot be read: %1</source>
        <translation>이벤트를 읽을 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Events: %1. Waiting: %2. Delivered: %3.</source>
        <translation>이벤트: %1. 대기 중: %2. 전송됨: %3.</translation>
    </message>
    <message>
        <source>%1 Found: %2.</source>
        <translation>%1 검색 결과: %2.</translation>
    </message>
    <message>
        <source>Export All Events</source>
        <translation>모든 이벤트 내보내기</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON Lines (*.jsonl)</translation>
    </message>
    <message>
        <source>CSV for spreadsheets (*.csv)</source>
        <translation>스프레드시트용 CSV (*.csv)</translation>
    </message>
    <message>
        <source>Delete All Events</source>
        <translation>모든 이벤트 삭제</translation>
    </message>
    <message>
        <source>Delete all %1 events? Those that wait will never be delivered. If you have agreed to recording, it goes on.</source>
        <translation>%1개의 이벤트를 모두 삭제하시겠습니까? 대기 중인 이벤트는 전송되지 않습니다. 기록에 동의한 경우 기록은 계속됩니다.</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Hand Over the Waiting Events</source>
        <translation>대기 중인 이벤트 전달</translation>
    </message>
    <message>
        <source>Events for the service (*.jsonl)</source>
        <translation>서비스용 이벤트 (*.jsonl)</translation>
    </message>
    <message>
        <source>The events that waited are written to %1, and will not be sent.</source>
        <translation>대기 중이던 이벤트를 %1에 기록했습니다. 전송되지 않습니다.</translation>
    </message>
    <message>
        <source>&amp;Hand Over...</source>
        <translation>전달(&amp;H)...</translation>
    </message>
    <message>
        <source>Writes the waiting events to a file for the service instead of sending them: for a computer without a network.</source>
        <translation>대기 중인 이벤트를 전송하지 않고 서비스용 파일에 기록합니다. 네트워크가 없는 컴퓨터에서 사용합니다.</translation>
    </message>
    <message>
        <source>%1 Handed over: %2.</source>
        <translation>%1 전달됨: %2.</translation>
    </message>
    <message>
        <source>You have no client ID.</source>
        <translation>클라이언트 ID가 없습니다.</translation>
    </message>
    <message>
        <source>Your client ID: %1</source>
        <translation>클라이언트 ID: %1</translation>
    </message>
    <message>
        <source>No server: the events stay on this computer.</source>
        <translation>서버 없음: 이벤트는 이 컴퓨터에 남습니다.</translation>
    </message>
    <message>
        <source>Server: %1</source>
        <translation>서버: %1</translation>
    </message>
</context>
<context>
    <name>Policy::CUsagePolicy</name>
    <message>
        <source>The administrator of this computer has forbidden to send usage data: what is recorded stays here.</source>
        <translation>이 컴퓨터의 관리자가 사용 데이터 전송을 금지했습니다. 기록된 내용은 여기에 남습니다.</translation>
    </message>
    <message>
        <source>The administrator of this computer has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>이 컴퓨터의 관리자가 사용 추적을 껐습니다. 아무것도 기록되거나 전송되지 않습니다.</translation>
    </message>
    <message>
        <source>DO_NOT_TRACK in the environment has switched usage tracking off: nothing is recorded or sent.</source>
        <translation>환경 변수 DO_NOT_TRACK으로 사용 추적이 꺼져 있습니다. 아무것도 기록되거나 전송되지 않습니다.</translation>
    </message>
    <message>
        <source>Usage tracking is switched off: the administrator&apos;s file /etc/ruisdk/policy.json cannot be read. Nothing is recorded or sent.</source>
        <translation>사용 추적이 꺼져 있습니다. 관리자의 파일 /etc/ruisdk/policy.json을 읽을 수 없습니다. 아무것도 기록되거나 전송되지 않습니다.</translation>
    </message>
</context>
<context>
    <name>Windows::RegularFile</name>
    <message>
        <source>It is not a file of its own</source>
        <translation>일반 파일이 아닙니다</translation>
    </message>
</context>
</TS>
