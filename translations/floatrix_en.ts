<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>RunControl</name>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Simulation of phenomenon</source>
        <translation>Simulation of phenomenon</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Stop simulation</source>
        <translation>Stop simulation</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause simulation</source>
        <translation>Pause simulation</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Resume simulation</source>
        <translation>Resume simulation</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Next snapshot of simulation process</source>
        <translation>Next snapshot of simulation process</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>Activate step by step simulation</source>
        <translation>Activate step by step simulation</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Deactivate step by step simulation</source>
        <translation>Deactivate step by step simulation</translation>
    </message>
</context>
<context>
    <name>frmMicroView</name>
    <message>
        <source>Click to pause simulation</source>
        <translation>Click to pause simulation</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Click to begin simulation</source>
        <translation>Click to begin simulation</translation>
    </message>
    <message>
        <source>Simulate</source>
        <translation>Simulate</translation>
    </message>
</context>
</TS>
