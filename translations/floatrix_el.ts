<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR">
<context>
    <name>RunControl</name>
    <message>
        <source>Simulation</source>
        <translation>Προσομοίωση</translation>
    </message>
    <message>
        <source>Simulation of phenomenon</source>
        <translation>Προσομοίωση του φαινομένου</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Τέλος</translation>
    </message>
    <message>
        <source>Stop simulation</source>
        <translation>Διακοπή της προσομοίωσης</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Pause simulation</source>
        <translation>Παύση της προσομοίωσης</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Συνέχεια</translation>
    </message>
    <message>
        <source>Resume simulation</source>
        <translation>Συνέχιση της προσομοίωσης</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Επόμενο</translation>
    </message>
    <message>
        <source>Next snapshot of simulation process</source>
        <translation>Επόμενο στιγμιότυπο της προσομοίωσης</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Βήμα</translation>
    </message>
    <message>
        <source>Activate step by step simulation</source>
        <translation>Ενεργοποίηση της προσομοίωσης βήμα προς βήμα</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Επαναφορά</translation>
    </message>
    <message>
        <source>Deactivate step by step simulation</source>
        <translation>Απενεργοποίηση της προσομοίωσης βήμα προς βήμα</translation>
    </message>
</context>
<context>
    <name>frmMicroView</name>
    <message>
        <source>Click to pause simulation</source>
        <translation>Πατήστε για παύση της προσομοίωσης</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Click to begin simulation</source>
        <translation>Πατήστε για έναρξη της προσομοίωσης</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Προσομοίωση</translation>
    </message>
</context>
</TS>
