<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Sair</translation>
    </message>
</context>
</TS>
