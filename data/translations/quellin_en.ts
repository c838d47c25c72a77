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
    <message numerus="yes">
        <source>%n channel(s) removed</source>
        <translation>
            <numerusform>%n channel removed</numerusform>
            <numerusform>%n channels removed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Select %n channel(s)?</source>
        <translation>
            <numerusform>Select %n channel?</numerusform>
            <numerusform>Select %n channels?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n min ago</source>
        <translation>
            <numerusform>updated %n min ago</numerusform>
            <numerusform>updated %n min ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n hour(s) ago</source>
        <translation>
            <numerusform>updated %n hour ago</numerusform>
            <numerusform>updated %n hours ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>updated %n day(s) ago</source>
        <translation>
            <numerusform>updated %n day ago</numerusform>
            <numerusform>updated %n days ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n channel</numerusform>
            <numerusform>%n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) come near</source>
        <translation>
            <numerusform>%n channel comes near</numerusform>
            <numerusform>%n channels come near</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) chosen</source>
        <translation>
            <numerusform>%n channel chosen</numerusform>
            <numerusform>%n channels chosen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show all %n feed(s)</source>
        <translation>
            <numerusform>Show %n feed</numerusform>
            <numerusform>Show all %n feeds</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>schedules for %n channel(s)</source>
        <translation>
            <numerusform>schedules for %n channel</numerusform>
            <numerusform>schedules for %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) of other sources lose their schedules.</source>
        <translation>
            <numerusform>%n channel of another source loses its schedule.</numerusform>
            <numerusform>%n channels of other sources lose their schedules.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Search %n channel(s)</source>
        <translation>
            <numerusform>Search %n channel</numerusform>
            <numerusform>Search %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n show(s)</source>
        <translation>
            <numerusform>%n show</numerusform>
            <numerusform>%n shows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s) and their shows go with it.</source>
        <translation>
            <numerusform>%n channel and its shows go with it.</numerusform>
            <numerusform>%n channels and their shows go with it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading: %n channel(s), %1</source>
        <translation>
            <numerusform>Reading: %n channel, %1</numerusform>
            <numerusform>Reading: %n channels, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of %n channel(s) have shows in the next 24 hours.</source>
        <translation>
            <numerusform>Only %1 of %n channel has shows in the next 24 hours.</numerusform>
            <numerusform>Only %1 of %n channels have shows in the next 24 hours.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Show all %n program(s)</source>
        <translation>
            <numerusform>Show the program</numerusform>
            <numerusform>Show all %n programs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add all %n channel(s)</source>
        <translation>
            <numerusform>Add the channel</numerusform>
            <numerusform>Add all %n channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add the %n channel(s) with shows</source>
        <translation>
            <numerusform>Add the channel with shows</numerusform>
            <numerusform>Add the %n channels with shows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s)</source>
        <translation>
            <numerusform>%n hour</numerusform>
            <numerusform>%n hours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove %n alert(s)?</source>
        <translation>
            <numerusform>Remove %n alert?</numerusform>
            <numerusform>Remove %n alerts?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n min</source>
        <translation>
            <numerusform>Every %n min</numerusform>
            <numerusform>Every %n min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n h</source>
        <translation>
            <numerusform>Every %n h</numerusform>
            <numerusform>Every %n h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Every %n day(s)</source>
        <translation>
            <numerusform>Every day</numerusform>
            <numerusform>Every %n days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Began %n min ago</source>
        <translation>
            <numerusform>Began %n min ago</numerusform>
            <numerusform>Began %n min ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected channel(s)</source>
        <translation>
            <numerusform>%n selected channel</numerusform>
            <numerusform>%n selected channels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n favourite(s)</source>
        <translation>
            <numerusform>%n favourite</numerusform>
            <numerusform>%n favourites</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) in the calendar</source>
        <translation>
            <numerusform>%n alert in the calendar</numerusform>
            <numerusform>%n alerts in the calendar</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept list(s)</source>
        <translation>
            <numerusform>%n kept list</numerusform>
            <numerusform>%n kept lists</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n alert(s) of other shows</source>
        <translation>
            <numerusform>%n alert of other shows</numerusform>
            <numerusform>%n alerts of other shows</numerusform>
        </translation>
    </message>
</context>
</TS>
