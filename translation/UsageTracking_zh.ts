<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="en">
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
