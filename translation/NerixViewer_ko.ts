<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
</TS>
