<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Guide</name>
    <message numerus="yes">
        <source>Titles, descriptions and people in the shows of your %n channel(s) are searched.</source>
        <translation>
            <numerusform>Titles, descriptions and people in the shows of your channel are searched.</numerusform>
            <numerusform>Titles, descriptions and people in the shows of your %n channels are searched.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>No show matches “%1” on your %n channel(s)</source>
        <translation>
            <numerusform>No show matches “%1” on your %n channel</numerusform>
            <numerusform>No show matches “%1” on your %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n show(s) today</source>
        <translation>
            <numerusform>%n show today</numerusform>
            <numerusform>%n shows today</numerusform>
        </translation>
    </message>
</context>
</TS>
