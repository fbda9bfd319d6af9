<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>DataPrivacy</name>
    <message>
        <source>At Ostrand, we are constantly investing in our products and services. To learn more about how our customers use our features and camera models, we started our product improvement program. It helps us to tailor our products to your needs and optimize your experience with Ostrand. We will not gather any personal data and your system performance won`t be affected.&lt;br/&gt;&lt;h3&gt;Would you like to participate in our product improvement program?&lt;/h3&gt;</source>
        <translation>Ostrand는 제품과 서비스에 지속적으로 투자하고 있습니다. 고객이 당사의 기능과 카메라 모델을 어떻게 사용하는지 더 자세히 알아보기 위해 제품 개선 프로그램을 시작했습니다. 이 프로그램은 고객의 요구에 맞게 제품을 개선하고 Ostrand 사용 환경을 최적화하는 데 도움이 됩니다. 개인 데이터는 일절 수집하지 않으며 시스템 성능에도 영향을 주지 않습니다.&lt;br/&gt;&lt;h3&gt;제품 개선 프로그램에 참여하시겠습니까?&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>Thank you. We will work hard to improve nerix and our cameras even further!&lt;br/&gt;&lt;br/&gt;Our promise to you:&lt;br/&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Benefit from improvements&lt;/b&gt; that will save you time in your own product development.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Influence the development of new technologies&lt;/b&gt; by participating in the program.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Be more competitive&lt;/b&gt; with a user experience, features, and products tailored to your needs.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>감사합니다. nerix와 카메라를 더욱 개선하기 위해 최선을 다하겠습니다!&lt;br/&gt;&lt;br/&gt;고객님께 드리는 약속:&lt;br/&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;개선의 혜택을 누려&lt;/b&gt; 제품 개발 시간을 절약하실 수 있습니다.&lt;/li&gt;&lt;li&gt;프로그램에 참여하여 &lt;b&gt;신기술 개발에 영향력을 발휘&lt;/b&gt;하실 수 있습니다.&lt;/li&gt;&lt;li&gt;고객의 요구에 맞춘 사용자 경험, 기능 및 제품으로 &lt;b&gt;경쟁력을 더욱 높이실&lt;/b&gt; 수 있습니다.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;의견이나 우려되는 점이 있으신가요? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;알려 주세요&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Sorry to hear that. Are you sure?&lt;br/&gt;&lt;ul&gt;&lt;li&gt;Don’t &lt;b&gt;delay your time-to-market&lt;/b&gt; due to a user experience optimized to others.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;minimize your influence&lt;/b&gt; on the development of &lt;b&gt;new technologies&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;lose your competitive advantage&lt;/b&gt; through features and cameras not tailored to you.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Please reconsider and participate in our improvement program.&lt;br/&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>아쉽습니다. 정말 참여하지 않으시겠습니까?&lt;br/&gt;&lt;ul&gt;&lt;li&gt;다른 고객에게 최적화된 사용자 경험 때문에 &lt;b&gt;제품 출시를 늦추지&lt;/b&gt; 마세요.&lt;/li&gt;&lt;li&gt;&lt;b&gt;신기술&lt;/b&gt; 개발에 대한 &lt;b&gt;영향력을 줄이지&lt;/b&gt; 마세요.&lt;/li&gt;&lt;li&gt;요구에 맞지 않는 기능과 카메라 때문에 &lt;b&gt;경쟁 우위를 잃지&lt;/b&gt; 마세요.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;다시 한번 생각해 보시고 개선 프로그램에 참여해 주세요.&lt;br/&gt;&lt;br/&gt;의견이나 우려되는 점이 있으신가요? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;알려 주세요&lt;/a&gt;</translation>
    </message>
    <message>
        <source>You can withdraw your consent anytime. Click &lt;b&gt;Help &gt; Data Privacy&lt;/b&gt; and change your selection.</source>
        <translation>동의는 언제든지 철회할 수 있습니다. &lt;b&gt;도움말 &gt; 개인정보 보호&lt;/b&gt;를 클릭하여 선택을 변경하세요.</translation>
    </message>
    <message>
        <source>For more information, read our &lt;a href=&quot;DataPrivacy.txt&quot;&gt;privacy statement&lt;/a&gt; and &lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;FAQs&lt;/a&gt;. Our &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;support&lt;/a&gt; team is happy to answer your questions.</source>
        <translation>자세한 내용은 &lt;a href=&quot;DataPrivacy.txt&quot;&gt;개인정보 보호정책&lt;/a&gt; 및 &lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;자주 묻는 질문&lt;/a&gt;을 참조하세요. 궁금한 점이 있으면 &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;지원&lt;/a&gt; 팀에서 기꺼이 답변해 드립니다.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Show this window on launch</source>
        <translation>시작할 때 이 창 표시</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::CUsageTrackingPlugin</name>
    <message>
        <source>Data Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::Internal::CDataPrivacyTab</name>
    <message>
        <source>Data Privacy</source>
        <translation>개인정보 보호</translation>
    </message>
</context>
</TS>
