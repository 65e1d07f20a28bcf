<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>終了</translation>
    </message>
</context>
</TS>
