<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AnalysisReport</name>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n frame</numerusform>
            <numerusform>%n frames</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n file, enlarged beyond its crop: %1</numerusform>
            <numerusform>%n files, enlarged beyond their crops: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files: %1</source>
        <translation>
            <numerusform>%n file: %1</numerusform>
            <numerusform>%n files: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files, enlarged beyond their crops: %1</source>
        <translation>
            <numerusform>%n file, enlarged beyond its crop: %1</numerusform>
            <numerusform>%n files, enlarged beyond their crops: %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reframe %n Videos</source>
        <translation>
            <numerusform>Reframe %n Video</numerusform>
            <numerusform>Reframe %n Videos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CropFinder</name>
    <message numerus="yes">
        <source>Cannot reframe %1: it has only %n frames; %2 are needed.</source>
        <translation>
            <numerusform>Cannot reframe %1: it has only %n frame; %2 are needed.</numerusform>
            <numerusform>Cannot reframe %1: it has only %n frames; %2 are needed.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportCard</name>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n to look at</numerusform>
            <numerusform>%n to look at</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportPanel</name>
    <message numerus="yes">
        <source>%n exports not finished</source>
        <translation>
            <numerusform>An export not finished</numerusform>
            <numerusform>%n exports not finished</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FoundSignals</name>
    <message numerus="yes">
        <source>follows who speaks, with %n cuts</source>
        <translation>
            <numerusform>follows who speaks, with %n cut</numerusform>
            <numerusform>follows who speaks, with %n cuts</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrAutoReframeDialog</name>
    <message>
        <source>AutoReframe_Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>KrAutoReframePropertyPanel</name>
    <message>
        <source>AutoReframe_Restart</source>
        <translation>Analyze Again</translation>
    </message>
</context>
<context>
    <name>KrDialogExtension</name>
    <message numerus="yes">
        <source>%n choices are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n choice is kept, but not in this cut of the video</numerusform>
            <numerusform>%n choices are kept, but not in this cut of the video</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n choices were moved to where their pictures are</source>
        <translation>
            <numerusform>%n choice was moved to where its pictures are</numerusform>
            <numerusform>%n choices were moved to where their pictures are</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrDoubtfulShots</name>
    <message numerus="yes">
        <source>%1 of %n shots to look at</source>
        <translation>
            <numerusform>%1 of %n shot to look at</numerusform>
            <numerusform>%1 of %n shots to look at</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KrEditPictures</name>
    <message numerus="yes">
        <source>%n edit points are kept, but not in this cut of the video</source>
        <translation>
            <numerusform>%n edit point is kept, but not in this cut of the video</numerusform>
            <numerusform>%n edit points are kept, but not in this cut of the video</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n edit points were moved to where their pictures are</source>
        <translation>
            <numerusform>%n edit point was moved to where its pictures are</numerusform>
            <numerusform>%n edit points were moved to where their pictures are</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaLibrary</name>
    <message numerus="yes">
        <source>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</source>
        <translation>
            <numerusform>%n video in %1 was left out: its name is not valid UTF-8. Rename it.</numerusform>
            <numerusform>%n videos in %1 were left out: their names are not valid UTF-8. Rename them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message numerus="yes">
        <source>%n files that are no videos were skipped</source>
        <translation>
            <numerusform>%n file that is no video was skipped</numerusform>
            <numerusform>%n files that are no videos were skipped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n videos</source>
        <translation>
            <numerusform>%n video</numerusform>
            <numerusform>%n videos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected</source>
        <translation>
            <numerusform>%n selected</numerusform>
            <numerusform>%n selected</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n exports are not finished. They are cancelled when you quit.</source>
        <translation>
            <numerusform>An export is not finished. It is cancelled when you quit.</numerusform>
            <numerusform>%n exports are not finished. They are cancelled when you quit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>… and %n more.</source>
        <translation>
            <numerusform>… and %n more.</numerusform>
            <numerusform>… and %n more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n selected videos are left.</source>
        <translation>
            <numerusform>It is the last one of the selected videos.</numerusform>
            <numerusform>%n selected videos are left.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MediaText</name>
    <message numerus="yes">
        <source>%n of your edits are not in this cut of the video</source>
        <translation>
            <numerusform>%n of your edits is not in this cut of the video</numerusform>
            <numerusform>%n of your edits are not in this cut of the video</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>QueueBar</name>
    <message numerus="yes">
        <source>%n without all edits</source>
        <translation>
            <numerusform>%n without all edits</numerusform>
            <numerusform>%n without all edits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <translation>
            <numerusform>%n failed</numerusform>
            <numerusform>%n failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n done</source>
        <translation>
            <numerusform>%n done</numerusform>
            <numerusform>%n done</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cancelled</source>
        <translation>
            <numerusform>%n cancelled</numerusform>
            <numerusform>%n cancelled</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n to look at</source>
        <translation>
            <numerusform>%n to look at</numerusform>
            <numerusform>%n to look at</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReframeJob</name>
    <message numerus="yes">
        <source>%n frames</source>
        <translation>
            <numerusform>%n frame</numerusform>
            <numerusform>%n frames</numerusform>
        </translation>
    </message>
</context>
</TS>
