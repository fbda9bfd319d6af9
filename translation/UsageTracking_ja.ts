<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>DataPrivacy</name>
    <message>
        <source>At Ostrand, we are constantly investing in our products and services. To learn more about how our customers use our features and camera models, we started our product improvement program. It helps us to tailor our products to your needs and optimize your experience with Ostrand. We will not gather any personal data and your system performance won`t be affected.&lt;br/&gt;&lt;h3&gt;Would you like to participate in our product improvement program?&lt;/h3&gt;</source>
        <translation>Ostrand は、製品とサービスに継続的に投資しています。お客様が当社の機能やカメラモデルをどのようにお使いになっているかをより深く理解するため、製品改善プログラムを開始しました。このプログラムは、製品をお客様のニーズに合わせ、Ostrand をより快適にご利用いただくために役立てられます。個人データを収集することは一切なく、システムのパフォーマンスにも影響しません。&lt;br/&gt;&lt;h3&gt;製品改善プログラムに参加されますか？&lt;/h3&gt;</translation>
    </message>
    <message>
        <source>Thank you. We will work hard to improve nerix and our cameras even further!&lt;br/&gt;&lt;br/&gt;Our promise to you:&lt;br/&gt;&lt;ul&gt;&lt;li&gt;&lt;b&gt;Benefit from improvements&lt;/b&gt; that will save you time in your own product development.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Influence the development of new technologies&lt;/b&gt; by participating in the program.&lt;/li&gt;&lt;li&gt;&lt;b&gt;Be more competitive&lt;/b&gt; with a user experience, features, and products tailored to your needs.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>ありがとうございます。nerix とカメラのさらなる改善に努めてまいります。&lt;br/&gt;&lt;br/&gt;お客様へのお約束：&lt;br/&gt;&lt;ul&gt;&lt;li&gt;お客様の製品開発にかかる時間を短縮する&lt;b&gt;改善の成果をご活用&lt;/b&gt;いただけます。&lt;/li&gt;&lt;li&gt;プログラムにご参加いただくことで、&lt;b&gt;新技術の開発に影響を与える&lt;/b&gt;ことができます。&lt;/li&gt;&lt;li&gt;お客様のニーズに合わせたユーザー体験、機能、製品により、&lt;b&gt;競争力をさらに高める&lt;/b&gt;ことができます。&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;ご意見やご不安な点がございましたら、&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;お聞かせください&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Sorry to hear that. Are you sure?&lt;br/&gt;&lt;ul&gt;&lt;li&gt;Don’t &lt;b&gt;delay your time-to-market&lt;/b&gt; due to a user experience optimized to others.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;minimize your influence&lt;/b&gt; on the development of &lt;b&gt;new technologies&lt;/b&gt;.&lt;/li&gt;&lt;li&gt;Don’t &lt;b&gt;lose your competitive advantage&lt;/b&gt; through features and cameras not tailored to you.&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;Please reconsider and participate in our improvement program.&lt;br/&gt;&lt;br/&gt;Any comments or concerns? &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;Let us know&lt;/a&gt;</source>
        <translation>残念です。本当によろしいですか？&lt;br/&gt;&lt;ul&gt;&lt;li&gt;他社向けに最適化されたユーザー体験のために、&lt;b&gt;製品の市場投入を遅らせない&lt;/b&gt;でください。&lt;/li&gt;&lt;li&gt;&lt;b&gt;新技術&lt;/b&gt;の開発に対する&lt;b&gt;影響力を弱めない&lt;/b&gt;でください。&lt;/li&gt;&lt;li&gt;お客様に合っていない機能やカメラのために、&lt;b&gt;競争優位を失わない&lt;/b&gt;でください。&lt;/li&gt;&lt;/ul&gt;&lt;br/&gt;ぜひご再考のうえ、改善プログラムにご参加ください。&lt;br/&gt;&lt;br/&gt;ご意見やご不安な点がございましたら、&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;お聞かせください&lt;/a&gt;</translation>
    </message>
    <message>
        <source>You can withdraw your consent anytime. Click &lt;b&gt;Help &gt; Data Privacy&lt;/b&gt; and change your selection.</source>
        <translation>同意はいつでも撤回できます。&lt;b&gt;ヘルプ &gt; データプライバシー&lt;/b&gt;をクリックし、選択を変更してください。</translation>
    </message>
    <message>
        <source>For more information, read our &lt;a href=&quot;DataPrivacy.txt&quot;&gt;privacy statement&lt;/a&gt; and &lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;FAQs&lt;/a&gt;. Our &lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;support&lt;/a&gt; team is happy to answer your questions.</source>
        <translation>詳細については、&lt;a href=&quot;DataPrivacy.txt&quot;&gt;プライバシーステートメント&lt;/a&gt;および&lt;a href=&quot;https://www.ostrand.example/faq&quot;&gt;よくある質問&lt;/a&gt;をお読みください。ご質問には&lt;a href=&quot;https://www.ostrand.example/support/contact&quot;&gt;サポート&lt;/a&gt;チームが喜んでお答えします。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Show this window on launch</source>
        <translation>起動時にこのウィンドウを表示</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::CUsageTrackingPlugin</name>
    <message>
        <source>Data Privacy</source>
        <translation>データプライバシー</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::Internal::CDataPrivacyTab</name>
    <message>
        <source>Data Privacy</source>
        <translation>データプライバシー</translation>
    </message>
</context>
</TS>
