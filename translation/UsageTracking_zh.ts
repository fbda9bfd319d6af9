<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>DataPrivacy</name>
    <message>
        <source>At Ostrand, we are constantly investing in our products and services. To learn more about how our customers use our features and camera models, we started our product improvement program. It helps us to tailor our products to your needs and optimize your experience with Ostrand. We will not gather any personal data and your system performance won`t be affected.&lt;br/&gt;&lt;h3&gt;Would you like to participate in our product improvement program?&lt;/h3&gt;</source>
        <translation>Ostrand 始终致力于对产品和服务进行投入。为了更深入地了解客户如何使用我们的功能和相机型号，我们启动了产品改进计划。该计划有助于我们根据您的需求打造产品，并优化您使用 Ostrand 的体验。我们不会收集任何个人数据，您的系统性能也不会受到影响。&lt;br/&gt;&lt;h3&gt;您愿意参加我们的产品改进计划吗？&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>Thank you. We will work hard to improve nerix and our cameras even further!&lt;br/&gt;&lt;br/&gt;Our promise to you:&lt;br/&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Benefit from improvements&lt;/b&gt; that will save you time in your own product development.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Influence the development of new technologies&lt;/b&gt; by participating in the program.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Be more competitive&lt;/b&gt; with a user experience, features, and products tailored to your needs.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>谢谢！我们将努力进一步改进 nerix 和我们的相机！&lt;br/&gt;&lt;br/&gt;我们对您的承诺：&lt;br/&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;从改进中获益&lt;/b&gt;，为您自己的产品开发节省时间。&lt;/li&gt;&lt;li&gt;通过参加该计划，&lt;b&gt;影响新技术的开发&lt;/b&gt;。&lt;/li&gt;&lt;li&gt;借助根据您的需求打造的用户体验、功能和产品，&lt;b&gt;提升竞争力&lt;/b&gt;。&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;有任何意见或疑虑？&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;请告诉我们&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Sorry to hear that. Are you sure?&lt;br/&gt;&lt;ul&gt;&lt;li&gt;Don’t &lt;b&gt;delay your time-to-market&lt;/b&gt; due to a user experience optimized to others.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;minimize your influence&lt;/b&gt; on the development of &lt;b&gt;new technologies&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;lose your competitive advantage&lt;/b&gt; through features and cameras not tailored to you.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Please reconsider and participate in our improvement program.&lt;br/&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>很遗憾。您确定吗？&lt;br/&gt;&lt;ul&gt;&lt;li&gt;不要因为针对他人优化的用户体验而&lt;b&gt;延迟产品上市时间&lt;/b&gt;。&lt;/li&gt;&lt;li&gt;不要&lt;b&gt;削弱您的影响力&lt;/b&gt;，错失参与塑造&lt;b&gt;新技术&lt;/b&gt;的机会。&lt;/li&gt;&lt;li&gt;不要因为功能和相机不符合您的需求而&lt;b&gt;失去竞争优势&lt;/b&gt;。&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;请重新考虑并参加我们的改进计划。&lt;br/&gt;&lt;br/&gt;有任何意见或疑虑？&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;请告诉我们&lt;/a&gt;</translation>
    </message>
    <message>
        <source>You can withdraw your consent anytime. Click &lt;b&gt;Help &gt; Data Privacy&lt;/b&gt; and change your selection.</source>
        <translation>您可以随时撤回同意。请点击&lt;b&gt;帮助 &gt; 数据隐私&lt;/b&gt;并更改您的选择。</translation>
    </message>
    <message>
        <source>For more information, read our &lt;a href=&quot;DataPrivacy.txt&quot;&gt;privacy statement&lt;/a&gt; and &lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;FAQs&lt;/a&gt;. Our &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;support&lt;/a&gt; team is happy to answer your questions.</source>
        <translation>有关详细信息，请阅读我们的&lt;a href=&quot;DataPrivacy.txt&quot;&gt;隐私声明&lt;/a&gt;和&lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;常见问题&lt;/a&gt;。我们的&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;支持&lt;/a&gt;团队很乐意解答您的问题。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Show this window on launch</source>
        <translation>启动时显示此窗口</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::CUsageTrackingPlugin</name>
    <message>
        <source>Data Privacy</source>
        <translation>数据隐私</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::Internal::CDataPrivacyTab</name>
    <message>
        <source>Data Privacy</source>
        <translation>数据隐私</translation>
    </message>
</context>
</TS>
