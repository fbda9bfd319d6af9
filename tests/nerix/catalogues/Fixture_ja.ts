<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 Ostrand -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Fixture</name>
    <message>
        <source>catalogue</source>
        <translation>ja</translation>
    </message>
</context>
</TS>
