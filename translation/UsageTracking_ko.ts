<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Plugin::UsageTracking::CUsageTrackingPlugin</name>
    <message>
        <source>Data Privacy</source>
        <translation>데이터 개인정보 보호</translation>
    </message>
</context>
<context>
    <name>Plugin::UsageTracking::Internal::CDataPrivacyTab</name>
    <message>
        <source>Data Privacy</source>
        <translation>데이터 개인정보 보호</translation>
    </message>
</context>
</TS>
