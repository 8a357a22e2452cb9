<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>ChartSaver</name>
    <message numerus="yes">
        <source>Saved %n file(s) in %1</source>
        <translation>
            <numerusform>Saved %n file in %1</numerusform>
            <numerusform>Saved %n files in %1</numerusform>
        </translation>
    </message>
</context>
</TS>
