<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 Ostrand -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh" sourcelanguage="en">
<context>
    <name>Fixture</name>
    <message>
        <source>catalogue</source>
        <translation>zh</translation>
    </message>
</context>
</TS>
