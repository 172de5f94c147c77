<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>BodyParameterHints</name>
    <message>
        <source>Μάζα %1ου σώματος</source>
        <translation>Mass of body %1</translation>
    </message>
    <message>
        <source>Ακτίνα %1ου σώματος</source>
        <translation>Radius of body %1</translation>
    </message>
    <message>
        <source>Αρχική θέση (x-άξονας) %1ου σώματος</source>
        <translation>Initial position (x-axis) of body %1</translation>
    </message>
    <message>
        <source>Αρχική θέση (y-άξονας) %1ου σώματος</source>
        <translation>Initial position (y-axis) of body %1</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον x-άξονα</source>
        <translation>Velocity of body %1 along the x-axis</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον y-άξονα</source>
        <translation>Velocity of body %1 along the y-axis</translation>
    </message>
    <message>
        <source>Μάζα %1ου σώματος (σε kgr)</source>
        <translation>Mass of body %1 (in kgr)</translation>
    </message>
    <message>
        <source>Ακτίνα %1ου σώματος (σε m)</source>
        <translation>Radius of body %1 (in m)</translation>
    </message>
    <message>
        <source>Αρχική θέση (x-άξονας)%1ου σώματος (σε m)</source>
        <translation>Initial position (x-axis) of body %1 (in m)</translation>
    </message>
    <message>
        <source>Αρχική θέση (y-άξονας)%1ου σώματος (σε m)</source>
        <translation>Initial position (y-axis) of body %1 (in m)</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον x-άξονα (σε m/sec)</source>
        <translation>Velocity of body %1 along the x-axis (in m/sec)</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον y-άξονα (σε m/sec)</source>
        <translation>Velocity of body %1 along the y-axis (in m/sec)</translation>
    </message>
    <message>
        <source>Εισαγωγή μάζας %1ου σώματος (0,%2]</source>
        <translation>Enter the mass of body %1 (0,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ακτίνας %1ου σώματος (0,%2]</source>
        <translation>Enter the radius of body %1 (0,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή αρχικής θέσης (x-άξονας) %1ου σώματος [-%2,%2]</source>
        <translation>Enter the initial position (x-axis) of body %1 [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή αρχικής θέσης (y-άξονας) %1ου σώματος [-%2,%2]</source>
        <translation>Enter the initial position (y-axis) of body %1 [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ταχύτητας %1ου σώματος στον x-άξονα [-%2,%2]</source>
        <translation>Enter the velocity of body %1 along the x-axis [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ταχύτητας %1ου σώματος στον y-άξονα [-%2,%2]</source>
        <translation>Enter the velocity of body %1 along the y-axis [-%2,%2]</translation>
    </message>
    <message>
        <source>Παράμετροι κρούσης</source>
        <translation>Collision parameters</translation>
    </message>
    <message>
        <source>Επιλογές Χρωματικής Απεικόνισης</source>
        <translation>Colour display options</translation>
    </message>
    <message>
        <source>Επιλογή Γραφικών Παραστάσεων</source>
        <translation>Choice of graphs</translation>
    </message>
    <message>
        <source>Επιλογές Μαθηματικού Μοντέλου Δυνάμεων που αναπτύσσονται κατά την κρούση</source>
        <translation>Choice of the mathematical model of the forces that act during the collision</translation>
    </message>
    <message>
        <source>Διακόπτες Απεικόνισης Διανυσμάτων</source>
        <translation>Switches for showing vectors</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης δυνάμεων</source>
        <translation>Show the graph of the forces</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης μετατοπίσεων</source>
        <translation>Show the graph of the displacements</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης ταχυτήτων</source>
        <translation>Show the graph of the velocities</translation>
    </message>
    <message>
        <source>Διατήρηση αναλογίας αξόνων γραφικών παραστάσεων</source>
        <translation>Keep the proportion of the axes of the graphs</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης δυνάμεων</source>
        <translation>Show the forces</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης ταχυτήτων</source>
        <translation>Show the velocities</translation>
    </message>
    <message>
        <source>Γραμμική προσέγγιση συναρτήσεων ταχύτητας/δύναμης</source>
        <translation>Linear approximation of the velocity/force functions</translation>
    </message>
    <message>
        <source>Συνέχεια Συνάρτησης Ταχύτητας</source>
        <translation>Continuous velocity function</translation>
    </message>
    <message>
        <source>Συνέχεια Συνάρτησης Ταχύτητας/Δύναμης</source>
        <translation>Continuous velocity/force functions</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 1ου σώματος</source>
        <translation>Choose the colour of body 1</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 2ου σώματος</source>
        <translation>Choose the colour of body 2</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων ταχύτητας</source>
        <translation>Choose the colour of the velocity vectors</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων δύναμης</source>
        <translation>Choose the colour of the force vectors</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 1ου σώματος</source>
        <translation>Current colour of body 1</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 2ου σώματος</source>
        <translation>Current colour of body 2</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων ταχύτητας</source>
        <translation>Current colour of the velocity vectors</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων δύναμης</source>
        <translation>Current colour of the force vectors</translation>
    </message>
</context>
<context>
    <name>CollisionLab</name>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>Momentum and kinetic energy before and after the collision; saving</source>
        <translation>Momentum and kinetic energy before and after the collision; saving</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Counts</source>
        <translation>Counts</translation>
    </message>
</context>
<context>
    <name>CollisionState</name>
    <message>
        <source>Initial positions and velocities lead to increasing distance of bodies.</source>
        <translation>Initial positions and velocities lead to increasing distance of bodies.</translation>
    </message>
    <message>
        <source>Bodies are overlaping!</source>
        <translation>Bodies are overlaping!</translation>
    </message>
    <message>
        <source>x components of velocity are equal, thus leading to no collision.</source>
        <translation>x components of velocity are equal, thus leading to no collision.</translation>
    </message>
    <message>
        <source>y components of velocity are equal, thus leading to no collision.</source>
        <translation>y components of velocity are equal, thus leading to no collision.</translation>
    </message>
    <message>
        <source>Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision.</source>
        <translation>Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision.</translation>
    </message>
    <message>
        <source>Bodies are overlaping! Additionally, y components of velocity are equal, thus leading to no collision.</source>
        <translation>Bodies are overlaping! Additionally, y components of velocity are equal, thus leading to no collision.</translation>
    </message>
    <message>
        <source>Initial condition do not lead to a collision.</source>
        <translation>Initial condition do not lead to a collision.</translation>
    </message>
    <message>
        <source>Simulation Results</source>
        <translation>Simulation Results</translation>
    </message>
    <message>
        <source>Attention!<byte value="xd"/>%1 Please try again with different parameters by clicking on the button &quot;Options&quot;.</source>
        <translation>Attention!<byte value="xd"/>%1 Please try again with different parameters by clicking on the button &quot;Options&quot;.</translation>
    </message>
</context>
<context>
    <name>ColorChooser</name>
    <message>
        <source>ABC Color Selection</source>
        <translation>ABC Color Selection</translation>
    </message>
</context>
<context>
    <name>FileExport</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2</source>
        <translation>The file &quot;%1&quot; could not be written: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>PNG pictures (*.png)</translation>
    </message>
    <message>
        <source>Save data</source>
        <translation>Save data</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Comma-separated values (*.csv)</translation>
    </message>
</context>
<context>
    <name>ForceStatistics</name>
    <message>
        <source>  Fleft = %1</source>
        <translation>  Fleft = %1</translation>
    </message>
    <message>
        <source>  Fright = %1</source>
        <translation>  Fright = %1</translation>
    </message>
    <message>
        <source>  Ftop = %1</source>
        <translation>  Ftop = %1</translation>
    </message>
    <message>
        <source>&lt;Fleft&gt; = %1</source>
        <translation>&lt;Fleft&gt; = %1</translation>
    </message>
    <message>
        <source>&lt;Fright&gt; = %1</source>
        <translation>&lt;Fright&gt; = %1</translation>
    </message>
    <message>
        <source>&lt;Ftop&gt; = %1</source>
        <translation>&lt;Ftop&gt; = %1</translation>
    </message>
    <message>
        <source>&lt;Fhorizontal&gt; = %1</source>
        <translation>&lt;Fhorizontal&gt; = %1</translation>
    </message>
    <message>
        <source>&lt;Fvertical&gt; = %1</source>
        <translation>&lt;Fvertical&gt; = %1</translation>
    </message>
</context>
<context>
    <name>GlobDef</name>
    <message>
        <source>Are you sure you want to exit ?</source>
        <translation>Are you sure you want to exit ?</translation>
    </message>
    <message>
        <source>Floatrix</source>
        <translation>Floatrix</translation>
    </message>
    <message>
        <source>Sorry, feature not yet implemented</source>
        <translation>Sorry, feature not yet implemented</translation>
    </message>
</context>
<context>
    <name>HandlerGuard</name>
    <message>
        <source>Floatrix</source>
        <translation>Floatrix</translation>
    </message>
</context>
<context>
    <name>IntroductionBook</name>
    <message>
        <source>Unit:%1 , Page:%2</source>
        <translation>Unit:%1 , Page:%2</translation>
    </message>
    <message>
        <source>Collision Forms (view from above)</source>
        <translation>Collision Forms (view from above)</translation>
    </message>
    <message>
        <source>Experiment (Side view) / Graphs</source>
        <translation>Experiment (Side view) / Graphs</translation>
    </message>
    <message>
        <source>Collisions are observed frequently in nature in every scale of observation. A collision can only macroscopically be described as a contact of bodies. In reality, repulsive forces cause a decrease/increase in veloctities of colliding bodies  and change their trajectories.</source>
        <translation>Collisions are observed frequently in nature in every scale of observation. A collision can only macroscopically be described as a contact of bodies. In reality, repulsive forces cause a decrease/increase in veloctities of colliding bodies  and change their trajectories.</translation>
    </message>
    <message>
        <source>In every collision the momentum is conserved, since this phenomenon is governed by internal forces. If, additionaly, kinetic energy is also conserved, then we have an elastic collision. If, after colliding, bodies stick together then we refer to a plastic collision. In this case kinetic energy is NOT conserved.</source>
        <translation>In every collision the momentum is conserved, since this phenomenon is governed by internal forces. If, additionaly, kinetic energy is also conserved, then we have an elastic collision. If, after colliding, bodies stick together then we refer to a plastic collision. In this case kinetic energy is NOT conserved.</translation>
    </message>
    <message>
        <source>Of course there is the semi-elastic (or semi-plastic) collision, during which the bodies do not stick together, but the system&apos;s kinetic energy is not conserved.</source>
        <translation>Of course there is the semi-elastic (or semi-plastic) collision, during which the bodies do not stick together, but the system&apos;s kinetic energy is not conserved.</translation>
    </message>
    <message>
        <source>In what follows we will experiment with the elastic collision, during which both the momentum and the kinetic energy of the system are conserved. By using these two principles we may derive appropriate equations in order to calculate the velocities after the collision. Specifically, these equations are:</source>
        <translation>In what follows we will experiment with the elastic collision, during which both the momentum and the kinetic energy of the system are conserved. By using these two principles we may derive appropriate equations in order to calculate the velocities after the collision. Specifically, these equations are:</translation>
    </message>
    <message>
        <source>V1=(m2υ2+υ1(m1-m2))/mtot and</source>
        <translation>V1=(m2υ2+υ1(m1-m2))/mtot and</translation>
    </message>
    <message>
        <source>V2=(m1υ1+υ2(m2-m1))/mtot</source>
        <translation>V2=(m1υ1+υ2(m2-m1))/mtot</translation>
    </message>
    <message>
        <source>where mtot=m1+m2</source>
        <translation>where mtot=m1+m2</translation>
    </message>
</context>
<context>
    <name>LiquidPage</name>
    <message>
        <source>The picture %1 %2: the vessel is shown without it</source>
        <translation>The picture %1 %2: the vessel is shown without it</translation>
    </message>
</context>
<context>
    <name>MDIMain</name>
    <message>
        <source>Ludophys - The Floatrixon (Floatrix)</source>
        <translation>Ludophys - The Floatrixon (Floatrix)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Introduction</translation>
    </message>
    <message>
        <source>Macroscopic View</source>
        <translation>Macroscopic View</translation>
    </message>
    <message>
        <source>Microscopic View</source>
        <translation>Microscopic View</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Search for...</source>
        <translation>Search for...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About...</translation>
    </message>
    <message>
        <source>Open views</source>
        <translation>Open views</translation>
    </message>
</context>
<context>
    <name>MemoryStatus</name>
    <message>
        <source>Total physical memory: %1KB<byte value="xd"/>Available physical memory: %2KB</source>
        <translation>Total physical memory: %1KB<byte value="xd"/>Available physical memory: %2KB</translation>
    </message>
</context>
<context>
    <name>MicroViewExport</name>
    <message>
        <source>Save picture...</source>
        <translation>Save picture...</translation>
    </message>
    <message>
        <source>Save this window&apos;s picture as a PNG file (Ctrl+Shift+S)</source>
        <translation>Save this window&apos;s picture as a PNG file (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Save data...</source>
        <translation>Save data...</translation>
    </message>
    <message>
        <source>Save the current and mean wall forces of every tick since the last reset as a CSV file (Ctrl+S)</source>
        <translation>Save the current and mean wall forces of every tick since the last reset as a CSV file (Ctrl+S)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation>Ctrl+Shift+S</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
</context>
<context>
    <name>MoviePlayer</name>
    <message>
        <source>The film player is missing:
%1</source>
        <translation>The film player is missing:
%1</translation>
    </message>
    <message>
        <source>The film player stopped working.</source>
        <translation>The film player stopped working.</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ParameterDialog</name>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Default values</source>
        <translation>Default values</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>is missing</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>cannot be read</translation>
    </message>
</context>
<context>
    <name>ResultsPanel</name>
    <message>
        <source>Momentum and energy</source>
        <translation>Momentum and energy</translation>
    </message>
    <message>
        <source>Save picture...</source>
        <translation>Save picture...</translation>
    </message>
    <message>
        <source>Save the picture as a PNG file (Ctrl+Shift+S)</source>
        <translation>Save the picture as a PNG file (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Save data...</source>
        <translation>Save data...</translation>
    </message>
    <message>
        <source>Save every step of the last run as a CSV file (Ctrl+S)</source>
        <translation>Save every step of the last run as a CSV file (Ctrl+S)</translation>
    </message>
    <message>
        <source>before</source>
        <translation>before</translation>
    </message>
    <message>
        <source>after</source>
        <translation>after</translation>
    </message>
    <message>
        <source>change</source>
        <translation>change</translation>
    </message>
    <message>
        <source>Body 1</source>
        <translation>Body 1</translation>
    </message>
    <message>
        <source>Body 2</source>
        <translation>Body 2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>px (kg·m/sec)</source>
        <translation>px (kg·m/sec)</translation>
    </message>
    <message>
        <source>p (kg·m/sec)</source>
        <translation>p (kg·m/sec)</translation>
    </message>
    <message>
        <source>py (kg·m/sec)</source>
        <translation>py (kg·m/sec)</translation>
    </message>
    <message>
        <source>E (J)</source>
        <translation>E (J)</translation>
    </message>
    <message>
        <source>Run the experiment: the momentum and kinetic energy of the bodies before and after the collision appear here.</source>
        <translation>Run the experiment: the momentum and kinetic energy of the bodies before and after the collision appear here.</translation>
    </message>
    <message>
        <source>Molecules in each half</source>
        <translation>Molecules in each half</translation>
    </message>
    <message>
        <source>left</source>
        <translation>left</translation>
    </message>
    <message>
        <source>right</source>
        <translation>right</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>group %1</translation>
    </message>
</context>
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
    <name>RunTimeError</name>
    <message>
        <source>Overflow</source>
        <translation>Overflow</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Division by zero</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Subscript out of range</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Invalid procedure call or argument</translation>
    </message>
    <message>
        <source>Object variable or With block variable not set</source>
        <translation>Object variable or With block variable not set</translation>
    </message>
</context>
<context>
    <name>frmCollisionOptions</name>
    <message>
        <source>m=</source>
        <translation>m=</translation>
    </message>
    <message>
        <source>kgr</source>
        <translation>kgr</translation>
    </message>
    <message>
        <source>R=</source>
        <translation>R=</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>x=</source>
        <translation>x=</translation>
    </message>
    <message>
        <source>y=</source>
        <translation>y=</translation>
    </message>
    <message>
        <source>υx=</source>
        <translation>υx=</translation>
    </message>
    <message>
        <source>m/sec</source>
        <translation>m/sec</translation>
    </message>
    <message>
        <source>υy=</source>
        <translation>υy=</translation>
    </message>
    <message>
        <source>Παράμετροι Ελαστικής Κρούσης</source>
        <translation>Parameters of the Elastic Collision</translation>
    </message>
    <message>
        <source>Μελέτης της υδροστατικής άνωσης με μέθοδο Monte Carlo</source>
        <translation>Study of hydrostatic buoyancy with the Monte Carlo method</translation>
    </message>
    <message>
        <source>Parameters of Bodies</source>
        <translation>Parameters of Bodies</translation>
    </message>
    <message>
        <source>First body:</source>
        <translation>First body:</translation>
    </message>
    <message>
        <source>Second Body:</source>
        <translation>Second Body:</translation>
    </message>
    <message>
        <source>Graphs selection</source>
        <translation>Graphs selection</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Velocity</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Force</translation>
    </message>
    <message>
        <source>Proportional Graphs</source>
        <translation>Proportional Graphs</translation>
    </message>
    <message>
        <source>Central</source>
        <translation>Central</translation>
    </message>
    <message>
        <source>Πλάγια</source>
        <translation>Oblique</translation>
    </message>
    <message>
        <source>Elastic</source>
        <translation>Elastic</translation>
    </message>
    <message>
        <source>Plastic</source>
        <translation>Plastic</translation>
    </message>
    <message>
        <source>Πλαστική κρούση: τα σώματα κινούνται μαζί μετά την επαφή</source>
        <translation>Plastic collision: the bodies move together after contact</translation>
    </message>
    <message>
        <source>View vectors</source>
        <translation>View vectors</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Momentum</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης ορμών</source>
        <translation>Show the momenta</translation>
    </message>
    <message>
        <source>Mathematical Model</source>
        <translation>Mathematical Model</translation>
    </message>
    <message>
        <source>Linear Model</source>
        <translation>Linear Model</translation>
    </message>
    <message>
        <source>u=f(t), continuous</source>
        <translation>u=f(t), continuous</translation>
    </message>
    <message>
        <source>u=f(t), F=f(t), continuous</source>
        <translation>u=f(t), F=f(t), continuous</translation>
    </message>
    <message>
        <source>Color Selection</source>
        <translation>Color Selection</translation>
    </message>
    <message>
        <source>Body 1:</source>
        <translation>Body 1:</translation>
    </message>
    <message>
        <source>Body 2:</source>
        <translation>Body 2:</translation>
    </message>
    <message>
        <source>velocities:</source>
        <translation>velocities:</translation>
    </message>
    <message>
        <source>Forces:</source>
        <translation>Forces:</translation>
    </message>
    <message>
        <source>Momenta:</source>
        <translation>Momenta:</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων ορμής</source>
        <translation>Choose the colour of the momentum vectors</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων ορμής</source>
        <translation>Current colour of the momentum vectors</translation>
    </message>
    <message>
        <source>Κατηγοριοποίηση Κρούσεων</source>
        <translation>Kinds of collision</translation>
    </message>
    <message>
        <source>Mass of body %1 (kg)</source>
        <translation>Mass of body %1 (kg)</translation>
    </message>
    <message>
        <source>Radius of body %1 (m)</source>
        <translation>Radius of body %1 (m)</translation>
    </message>
    <message>
        <source>Position x of body %1 (m)</source>
        <translation>Position x of body %1 (m)</translation>
    </message>
    <message>
        <source>Position y of body %1 (m)</source>
        <translation>Position y of body %1 (m)</translation>
    </message>
    <message>
        <source>Velocity x of body %1 (m/s)</source>
        <translation>Velocity x of body %1 (m/s)</translation>
    </message>
    <message>
        <source>Velocity y of body %1 (m/s)</source>
        <translation>Velocity y of body %1 (m/s)</translation>
    </message>
    <message>
        <source>Colour of body 1</source>
        <translation>Colour of body 1</translation>
    </message>
    <message>
        <source>Colour of body 2</source>
        <translation>Colour of body 2</translation>
    </message>
    <message>
        <source>Colour of the velocities</source>
        <translation>Colour of the velocities</translation>
    </message>
    <message>
        <source>Colour of the forces</source>
        <translation>Colour of the forces</translation>
    </message>
    <message>
        <source>Distance graph</source>
        <translation>Distance graph</translation>
    </message>
    <message>
        <source>Velocity graph</source>
        <translation>Velocity graph</translation>
    </message>
    <message>
        <source>Force graph</source>
        <translation>Force graph</translation>
    </message>
    <message>
        <source>Velocity vectors</source>
        <translation>Velocity vectors</translation>
    </message>
    <message>
        <source>Force vectors</source>
        <translation>Force vectors</translation>
    </message>
    <message>
        <source>Momentum vectors</source>
        <translation>Momentum vectors</translation>
    </message>
</context>
<context>
    <name>frmIdentify</name>
    <message>
        <source>LUDOPHYS</source>
        <translation>LUDOPHYS</translation>
    </message>
    <message>
        <source>Physics in Traditional Games</source>
        <translation>Physics in Traditional Games</translation>
    </message>
    <message>
        <source>Floatrixon (Floatrix)</source>
        <translation>Floatrixon (Floatrix)</translation>
    </message>
    <message>
        <source>Simulation Program</source>
        <translation>Simulation Program</translation>
    </message>
    <message>
        <source>Version 1.0</source>
        <translation>Version 1.0</translation>
    </message>
    <message>
        <source>© 2026 The Floatrix Team</source>
        <translation>© 2026 The Floatrix Team</translation>
    </message>
    <message>
        <source>Physics Education Software</source>
        <translation>Physics Education Software</translation>
    </message>
    <message>
        <source>Free for schools and learners everywhere</source>
        <translation>Free for schools and learners everywhere</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Floatrixon (Floatrix), a simulation program of the Ludophys series</source>
        <translation>Floatrixon (Floatrix), a simulation program of the Ludophys series</translation>
    </message>
    <message>
        <source>Floatrix</source>
        <translation>Floatrix</translation>
    </message>
    <message>
        <source>Physical memory of this computer</source>
        <translation>Physical memory of this computer</translation>
    </message>
    <message>
        <source>Close the About box</source>
        <translation>Close the About box</translation>
    </message>
</context>
<context>
    <name>frmIntroduction</name>
    <message>
        <source>Introduction</source>
        <translation>Introduction</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>&lt;</source>
        <translation>&lt;</translation>
    </message>
    <message>
        <source>&gt;</source>
        <translation>&gt;</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unit:</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Page:</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Go To</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Delay</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explanation</translation>
    </message>
    <message>
        <source>select unit</source>
        <translation>select unit</translation>
    </message>
    <message>
        <source>Select page</source>
        <translation>Select page</translation>
    </message>
    <message>
        <source>Select Unit</source>
        <translation>Select Unit</translation>
    </message>
    <message>
        <source>Select Page</source>
        <translation>Select Page</translation>
    </message>
    <message>
        <source>Visualisation</source>
        <translation>Visualisation</translation>
    </message>
    <message>
        <source>Exit introduction</source>
        <translation>Exit introduction</translation>
    </message>
    <message>
        <source>Go to previous unit</source>
        <translation>Go to previous unit</translation>
    </message>
    <message>
        <source>Go to previous page</source>
        <translation>Go to previous page</translation>
    </message>
    <message>
        <source>Go to next page</source>
        <translation>Go to next page</translation>
    </message>
    <message>
        <source>Go to next unit</source>
        <translation>Go to next unit</translation>
    </message>
    <message>
        <source>Go to Unit and/or Page</source>
        <translation>Go to Unit and/or Page</translation>
    </message>
    <message>
        <source>Define collision parameters</source>
        <translation>Define collision parameters</translation>
    </message>
    <message>
        <source>The Floatrixon - A modern Greek game</source>
        <translation>The Floatrixon - A modern Greek game</translation>
    </message>
    <message>
        <source>Previous unit</source>
        <translation>Previous unit</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Previous page</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Next page</translation>
    </message>
    <message>
        <source>Next unit</source>
        <translation>Next unit</translation>
    </message>
    <message>
        <source>Unit number</source>
        <translation>Unit number</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Page number</translation>
    </message>
    <message>
        <source>Explanation of the page</source>
        <translation>Explanation of the page</translation>
    </message>
    <message>
        <source>Delay of the simulation</source>
        <translation>Delay of the simulation</translation>
    </message>
    <message>
        <source>The page&apos;s picture, with its experiment when it has one</source>
        <translation>The page&apos;s picture, with its experiment when it has one</translation>
    </message>
</context>
<context>
    <name>frmLGOptions</name>
    <message>
        <source>Parameters of Gas Molecules</source>
        <translation>Parameters of Gas Molecules</translation>
    </message>
    <message>
        <source># of rows</source>
        <translation># of rows</translation>
    </message>
    <message>
        <source># of columns</source>
        <translation># of columns</translation>
    </message>
    <message>
        <source>First kind:</source>
        <translation>First kind:</translation>
    </message>
    <message>
        <source>Second kind:</source>
        <translation>Second kind:</translation>
    </message>
    <message>
        <source>Επιλογές Απεικόνισης Μορίων Ρευστών</source>
        <translation>Display options for the liquid molecules</translation>
    </message>
    <message>
        <source>Πλήθος σειρών μορίων</source>
        <translation>Number of rows of molecules</translation>
    </message>
    <message>
        <source>Πλήθος στηλών μορίων</source>
        <translation>Number of columns of molecules</translation>
    </message>
    <message>
        <source>Εισαγωγή πλήθους σειρών μορίων (1,%1]</source>
        <translation>Enter the number of rows of molecules (1,%1]</translation>
    </message>
    <message>
        <source>Εισαγωγή πλήθους στηλών μορίων (1,%1]</source>
        <translation>Enter the number of columns of molecules (1,%1]</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 1ης ομάδας μορίων</source>
        <translation>Choose the colour of the first group of molecules</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 2ης ομάδας μορίων</source>
        <translation>Choose the colour of the second group of molecules</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 1ης ομάδας μορίων</source>
        <translation>Current colour of the first group of molecules</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 2ης ομάδας μορίων</source>
        <translation>Current colour of the second group of molecules</translation>
    </message>
    <message>
        <source>Number of rows of molecules</source>
        <translation>Number of rows of molecules</translation>
    </message>
    <message>
        <source>Number of columns of molecules</source>
        <translation>Number of columns of molecules</translation>
    </message>
    <message>
        <source>Colour of the first kind of molecules</source>
        <translation>Colour of the first kind of molecules</translation>
    </message>
    <message>
        <source>Colour of the second kind of molecules</source>
        <translation>Colour of the second kind of molecules</translation>
    </message>
</context>
<context>
    <name>frmMacroView</name>
    <message>
        <source>Macroscopic View</source>
        <translation>Macroscopic View</translation>
    </message>
    <message>
        <source>A Floatrixon rising into the evening sky</source>
        <translation>A Floatrixon rising into the evening sky</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Play the film from where it stands</source>
        <translation>Play the film from where it stands</translation>
    </message>
    <message>
        <source>Close the macroscopic view</source>
        <translation>Close the macroscopic view</translation>
    </message>
    <message>
        <source>The film cannot be shown.

&quot;floatrixo.avi&quot; is missing from the program&apos;s folder:
%1</source>
        <translation>The film cannot be shown.

&quot;floatrixo.avi&quot; is missing from the program&apos;s folder:
%1</translation>
    </message>
    <message>
        <source>The film cannot be shown.

&quot;floatrixo.avi&quot; could not be played:
%1</source>
        <translation>The film cannot be shown.

&quot;floatrixo.avi&quot; could not be played:
%1</translation>
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
    <message>
        <source>Left Wall</source>
        <translation>Left Wall</translation>
    </message>
    <message>
        <source>Right Wall</source>
        <translation>Right Wall</translation>
    </message>
    <message>
        <source>Top Wall</source>
        <translation>Top Wall</translation>
    </message>
    <message>
        <source>Microscopic view of gas molecules&apos; movement</source>
        <translation>Microscopic view of gas molecules&apos; movement</translation>
    </message>
    <message>
        <source>Top Wall Calculations</source>
        <translation>Top Wall Calculations</translation>
    </message>
    <message>
        <source>Calculations of Totals</source>
        <translation>Calculations of Totals</translation>
    </message>
    <message>
        <source>Left Wall Calculations</source>
        <translation>Left Wall Calculations</translation>
    </message>
    <message>
        <source>Right Wall Calculations</source>
        <translation>Right Wall Calculations</translation>
    </message>
    <message>
        <source>  Fx =</source>
        <translation>  Fx =</translation>
    </message>
    <message>
        <source>Current value of force on left wall</source>
        <translation>Current value of force on left wall</translation>
    </message>
    <message>
        <source>&lt;Fx&gt; =</source>
        <translation>&lt;Fx&gt; =</translation>
    </message>
    <message>
        <source>Mean value of force on left wall</source>
        <translation>Mean value of force on left wall</translation>
    </message>
    <message>
        <source>Current value of force on right wall</source>
        <translation>Current value of force on right wall</translation>
    </message>
    <message>
        <source>Mean value of force on right wall</source>
        <translation>Mean value of force on right wall</translation>
    </message>
    <message>
        <source>  Fy =</source>
        <translation>  Fy =</translation>
    </message>
    <message>
        <source>Current value of force on top wall</source>
        <translation>Current value of force on top wall</translation>
    </message>
    <message>
        <source>&lt;Fy&gt; =</source>
        <translation>&lt;Fy&gt; =</translation>
    </message>
    <message>
        <source>Mean value of force on top wall</source>
        <translation>Mean value of force on top wall</translation>
    </message>
    <message>
        <source>Mean value (in time) of horizontal force</source>
        <translation>Mean value (in time) of horizontal force</translation>
    </message>
    <message>
        <source>Mean value (in time) of vertical force</source>
        <translation>Mean value (in time) of vertical force</translation>
    </message>
    <message>
        <source>Macroscopic Movement</source>
        <translation>Macroscopic Movement</translation>
    </message>
    <message>
        <source>Macroscopic view of Floatrix&apos;s direction of movement</source>
        <translation>Macroscopic view of Floatrix&apos;s direction of movement</translation>
    </message>
    <message>
        <source>Horizontal force indicator</source>
        <translation>Horizontal force indicator</translation>
    </message>
    <message>
        <source>Vertical force indicator</source>
        <translation>Vertical force indicator</translation>
    </message>
    <message>
        <source># of columns of molecules</source>
        <translation># of columns of molecules</translation>
    </message>
    <message>
        <source># of rows of molecules</source>
        <translation># of rows of molecules</translation>
    </message>
    <message>
        <source>Molecules&apos; mass</source>
        <translation>Molecules&apos; mass</translation>
    </message>
    <message>
        <source>Molecules&apos; radius</source>
        <translation>Molecules&apos; radius</translation>
    </message>
    <message>
        <source>Time &quot;step&quot; of simulation</source>
        <translation>Time &quot;step&quot; of simulation</translation>
    </message>
    <message>
        <source>Temperature of sample (K)</source>
        <translation>Temperature of sample (K)</translation>
    </message>
    <message>
        <source>Draw Grid</source>
        <translation>Draw Grid</translation>
    </message>
    <message>
        <source>Check to draw lattice grid</source>
        <translation>Check to draw lattice grid</translation>
    </message>
    <message>
        <source>Draw molecule distance</source>
        <translation>Draw molecule distance</translation>
    </message>
    <message>
        <source>Check to draw molecules&apos; current distance from lattice positions</source>
        <translation>Check to draw molecules&apos; current distance from lattice positions</translation>
    </message>
    <message>
        <source>Random Draw  Color</source>
        <translation>Random Draw  Color</translation>
    </message>
    <message>
        <source>Check to draw molecules in random colors</source>
        <translation>Check to draw molecules in random colors</translation>
    </message>
    <message>
        <source>&quot;Compact&quot; molecules</source>
        <translation>&quot;Compact&quot; molecules</translation>
    </message>
    <message>
        <source>Check to draw solid molecules</source>
        <translation>Check to draw solid molecules</translation>
    </message>
    <message>
        <source>Track movement</source>
        <translation>Track movement</translation>
    </message>
    <message>
        <source>Check to make molecules&apos; paths visible</source>
        <translation>Check to make molecules&apos; paths visible</translation>
    </message>
    <message>
        <source>Observe Molecule</source>
        <translation>Observe Molecule</translation>
    </message>
    <message>
        <source>Check to observe a single molecules of the sample</source>
        <translation>Check to observe a single molecules of the sample</translation>
    </message>
    <message>
        <source>Perturbation</source>
        <translation>Perturbation</translation>
    </message>
    <message>
        <source>Check to introduce perturbation in the molecules&apos; movement</source>
        <translation>Check to introduce perturbation in the molecules&apos; movement</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Clear history</translation>
    </message>
    <message>
        <source>Click to exit</source>
        <translation>Click to exit</translation>
    </message>
    <message>
        <source>Click to restart calculations of mean force values</source>
        <translation>Click to restart calculations of mean force values</translation>
    </message>
    <message>
        <source>Microscopic View of Gas</source>
        <translation>Microscopic View of Gas</translation>
    </message>
    <message>
        <source>Nx=%1</source>
        <translation>Nx=%1</translation>
    </message>
    <message>
        <source>Ny=%1</source>
        <translation>Ny=%1</translation>
    </message>
    <message>
        <source>m=%1</source>
        <translation>m=%1</translation>
    </message>
    <message>
        <source>R=%1</source>
        <translation>R=%1</translation>
    </message>
    <message>
        <source>dt=%1</source>
        <translation>dt=%1</translation>
    </message>
    <message>
        <source>T=%1</source>
        <translation>T=%1</translation>
    </message>
    <message>
        <source>Number of molecules along x</source>
        <translation>Number of molecules along x</translation>
    </message>
    <message>
        <source>Number of molecules along y</source>
        <translation>Number of molecules along y</translation>
    </message>
    <message>
        <source>Mass of a molecule</source>
        <translation>Mass of a molecule</translation>
    </message>
    <message>
        <source>Radius of a molecule</source>
        <translation>Radius of a molecule</translation>
    </message>
    <message>
        <source>Time step of the simulation</source>
        <translation>Time step of the simulation</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperature</translation>
    </message>
    <message>
        <source>Molecules at the left wall</source>
        <translation>Molecules at the left wall</translation>
    </message>
    <message>
        <source>Molecules at the right wall</source>
        <translation>Molecules at the right wall</translation>
    </message>
    <message>
        <source>Molecules at the top wall</source>
        <translation>Molecules at the top wall</translation>
    </message>
    <message>
        <source>The balloon and the direction the gas pushes it</source>
        <translation>The balloon and the direction the gas pushes it</translation>
    </message>
    <message>
        <source>Horizontal force on the balloon</source>
        <translation>Horizontal force on the balloon</translation>
    </message>
    <message>
        <source>Vertical force on the balloon</source>
        <translation>Vertical force on the balloon</translation>
    </message>
</context>
<context>
    <name>suppl</name>
    <message>
        <source>Accept parameter values and exit</source>
        <translation>Accept parameter values and exit</translation>
    </message>
    <message>
        <source>Cancel changes and exit</source>
        <translation>Cancel changes and exit</translation>
    </message>
    <message>
        <source>Default values for all parameters</source>
        <translation>Default values for all parameters</translation>
    </message>
</context>
</TS>
