<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>DesktopNotices</name>
    <message numerus="yes">
        <source>%n Sentry events not kept yet</source>
        <translation>
            <numerusform>%n Sentry event not kept yet</numerusform>
            <numerusform>%n Sentry events not kept yet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ExportFlow</name>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>about %n second left</numerusform>
            <numerusform>about %n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>about %n minute left</numerusform>
            <numerusform>about %n minutes left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HealthComputer</name>
    <message numerus="yes">
        <source>Back up %n new events</source>
        <translation>
            <numerusform>Back up %n new event</numerusform>
            <numerusform>Back up %n new events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n clips didn&apos;t record properly</source>
        <translation>
            <numerusform>%n clip didn&apos;t record properly</numerusform>
            <numerusform>%n clips didn&apos;t record properly</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>HealthPresenter</name>
    <message numerus="yes">
        <source>You have %n events not backed up yet — see the recommendation below.</source>
        <translation>
            <numerusform>You have %n event not backed up yet — see the recommendation below.</numerusform>
            <numerusform>You have %n events not backed up yet — see the recommendation below.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n checked clips are in good shape.</source>
        <translation>
            <numerusform>All %n checked clips are in good shape.</numerusform>
            <numerusform>All %n checked clips are in good shape.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n checked clips didn&apos;t record properly.</source>
        <extracomment>%1 damaged clips of %n checked</extracomment>
        <translation>
            <numerusform>%1 of %n checked clips didn&apos;t record properly.</numerusform>
            <numerusform>%1 of %n checked clips didn&apos;t record properly.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>InboxPresenter</name>
    <message numerus="yes">
        <source>%n damaged clips</source>
        <translation>
            <numerusform>%n damaged clip</numerusform>
            <numerusform>%n damaged clips</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</source>
        <extracomment>Camera angles, one per camera, whose clips are damaged</extracomment>
        <translation>
            <numerusform>%n angle from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</numerusform>
            <numerusform>%n angles from this moment didn&apos;t record properly. This is a known Tesla drive issue, not something you did.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Keep %n</source>
        <extracomment>Button that keeps the ticked events in the Vault; %n is how many</extracomment>
        <translation>
            <numerusform>Keep %n</numerusform>
            <numerusform>Keep %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Dismiss %n</source>
        <extracomment>Button that hides the ticked events from the list; %n is how many</extracomment>
        <translation>
            <numerusform>Dismiss %n</numerusform>
            <numerusform>Dismiss %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeepSummary</name>
    <message numerus="yes">
        <source>%1 was disconnected before everything was kept: %n events kept and verified.</source>
        <translation>
            <numerusform>%1 was disconnected before everything was kept: %n event kept and verified.</numerusform>
            <numerusform>%1 was disconnected before everything was kept: %n events kept and verified.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Stopped keeping from %1: %n events kept and verified.</source>
        <translation>
            <numerusform>Stopped keeping from %1: %n event kept and verified.</numerusform>
            <numerusform>Stopped keeping from %1: %n events kept and verified.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</source>
        <extracomment>%1 is the drive&apos;s name, %2 the first failed file&apos;s reason (a whole sentence)</extracomment>
        <translation>
            <numerusform>Kept %n new event from %1, but some files couldn&apos;t be kept. %2</numerusform>
            <numerusform>Kept %n new events from %1, but some files couldn&apos;t be kept. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Kept %n new events from %1 — %2, all verified</source>
        <extracomment>%1 is the drive&apos;s name, %2 a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>
            <numerusform>Kept %n new event from %1 — %2, all verified</numerusform>
            <numerusform>Kept %n new events from %1 — %2, all verified</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>OnboardingTexts</name>
    <message numerus="yes">
        <source>Found %n events so far, across %1 clips.</source>
        <translation>
            <numerusform>Found %n event so far, across %1 clips.</numerusform>
            <numerusform>Found %n events so far, across %1 clips.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ReportDocument</name>
    <message numerus="yes">
        <source>%n cameras</source>
        <translation>
            <numerusform>%n camera</numerusform>
            <numerusform>%n cameras</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnlockController</name>
    <message numerus="yes">
        <source>%n events here were recorded with your car&apos;s encryption on.</source>
        <translation>
            <numerusform>%n event here was recorded with your car&apos;s encryption on.</numerusform>
            <numerusform>%n events here were recorded with your car&apos;s encryption on.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %n clips.</source>
        <translation>
            <numerusform>Unlocked %n clip.</numerusform>
            <numerusform>Unlocked %n clips.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Unlocked %1 of %n clips.</source>
        <translation>
            <numerusform>Unlocked %1 of %n clips.</numerusform>
            <numerusform>Unlocked %1 of %n clips.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultMarks</name>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>one file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n files</source>
        <extracomment>Files that reached the Vault, of all the event has</extracomment>
        <translation>
            <numerusform>%1 of %n files</numerusform>
            <numerusform>%1 of %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more kept events have problems too.</source>
        <translation>
            <numerusform>%n more kept events have problems too.</numerusform>
            <numerusform>%n more kept events have problems too.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n kept events no longer match what was kept</source>
        <translation>
            <numerusform>A kept event no longer matches what was kept</numerusform>
            <numerusform>%n kept events no longer match what was kept</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Drive disconnected — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Drive disconnected — %1 of %n event kept completely</numerusform>
            <numerusform>Drive disconnected — %1 of %n events kept completely</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Backup Incomplete — %1 of %n events kept completely</source>
        <translation>
            <numerusform>Backup Incomplete — %1 of %n event kept completely</numerusform>
            <numerusform>Backup Incomplete — %1 of %n events kept completely</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</source>
        <translation>
            <numerusform>%n event copied and verified, byte-for-byte. The original on your drive is untouched.</numerusform>
            <numerusform>%n events copied and verified, byte-for-byte. The original on your drive is untouched.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</source>
        <extracomment>%1 of %2 are the files that arrived, of all the events have</extracomment>
        <translation>
            <numerusform>%n event reached your Vault only in part (%1 of %2 files), so it isn&apos;t a verified copy. Keep it again to finish it.</numerusform>
            <numerusform>%n events reached your Vault only in part (%1 of %2 files), so they aren&apos;t verified copies. Keep them again to finish them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were already in your Vault, so we skipped them.</source>
        <extracomment>%n is a number of events</extracomment>
        <translation>
            <numerusform>%n were already in your Vault, so we skipped them.</numerusform>
            <numerusform>%n were already in your Vault, so we skipped them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read as the drive went away.</source>
        <translation>
            <numerusform>%n file couldn&apos;t be read as the drive went away.</numerusform>
            <numerusform>%n files couldn&apos;t be read as the drive went away.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</source>
        <translation>
            <numerusform>%n file couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</numerusform>
            <numerusform>%n files couldn&apos;t be read — your drive may be failing. Nothing was deleted or changed; you can try again.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>VaultViewModel</name>
    <message numerus="yes">
        <source>%n events · %1 · %2 free on this disk</source>
        <extracomment>The Vault&apos;s summary: how many kept events, their size, and the room left on the Vault&apos;s disk</extracomment>
        <translation>
            <numerusform>%n event · %1 · %2 free on this disk</numerusform>
            <numerusform>%n events · %1 · %2 free on this disk</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n events · %1</source>
        <extracomment>The Vault&apos;s summary: how many kept events and their size</extracomment>
        <translation>
            <numerusform>%n event · %1</numerusform>
            <numerusform>%n events · %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n events</source>
        <extracomment>A keep&apos;s progress: events done of all it keeps</extracomment>
        <translation>
            <numerusform>%1 of %n events</numerusform>
            <numerusform>%1 of %n events</numerusform>
        </translation>
    </message>
</context>
</TS>
