<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el_GR">
<context>
    <name>BodyParameterHints</name>
    <message>
        <source>Μάζα %1ου σώματος</source>
        <translation>Μάζα %1ου σώματος</translation>
    </message>
    <message>
        <source>Ακτίνα %1ου σώματος</source>
        <translation>Ακτίνα %1ου σώματος</translation>
    </message>
    <message>
        <source>Αρχική θέση (x-άξονας) %1ου σώματος</source>
        <translation>Αρχική θέση (x-άξονας) %1ου σώματος</translation>
    </message>
    <message>
        <source>Αρχική θέση (y-άξονας) %1ου σώματος</source>
        <translation>Αρχική θέση (y-άξονας) %1ου σώματος</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον x-άξονα</source>
        <translation>Ταχύτητα %1ου σώματος στον x-άξονα</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον y-άξονα</source>
        <translation>Ταχύτητα %1ου σώματος στον y-άξονα</translation>
    </message>
    <message>
        <source>Μάζα %1ου σώματος (σε kgr)</source>
        <translation>Μάζα %1ου σώματος (σε kgr)</translation>
    </message>
    <message>
        <source>Ακτίνα %1ου σώματος (σε m)</source>
        <translation>Ακτίνα %1ου σώματος (σε m)</translation>
    </message>
    <message>
        <source>Αρχική θέση (x-άξονας)%1ου σώματος (σε m)</source>
        <translation>Αρχική θέση (x-άξονας)%1ου σώματος (σε m)</translation>
    </message>
    <message>
        <source>Αρχική θέση (y-άξονας)%1ου σώματος (σε m)</source>
        <translation>Αρχική θέση (y-άξονας)%1ου σώματος (σε m)</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον x-άξονα (σε m/sec)</source>
        <translation>Ταχύτητα %1ου σώματος στον x-άξονα (σε m/sec)</translation>
    </message>
    <message>
        <source>Ταχύτητα %1ου σώματος στον y-άξονα (σε m/sec)</source>
        <translation>Ταχύτητα %1ου σώματος στον y-άξονα (σε m/sec)</translation>
    </message>
    <message>
        <source>Εισαγωγή μάζας %1ου σώματος (0,%2]</source>
        <translation>Εισαγωγή μάζας %1ου σώματος (0,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ακτίνας %1ου σώματος (0,%2]</source>
        <translation>Εισαγωγή ακτίνας %1ου σώματος (0,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή αρχικής θέσης (x-άξονας) %1ου σώματος [-%2,%2]</source>
        <translation>Εισαγωγή αρχικής θέσης (x-άξονας) %1ου σώματος [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή αρχικής θέσης (y-άξονας) %1ου σώματος [-%2,%2]</source>
        <translation>Εισαγωγή αρχικής θέσης (y-άξονας) %1ου σώματος [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ταχύτητας %1ου σώματος στον x-άξονα [-%2,%2]</source>
        <translation>Εισαγωγή ταχύτητας %1ου σώματος στον x-άξονα [-%2,%2]</translation>
    </message>
    <message>
        <source>Εισαγωγή ταχύτητας %1ου σώματος στον y-άξονα [-%2,%2]</source>
        <translation>Εισαγωγή ταχύτητας %1ου σώματος στον y-άξονα [-%2,%2]</translation>
    </message>
    <message>
        <source>Παράμετροι κρούσης</source>
        <translation>Παράμετροι κρούσης</translation>
    </message>
    <message>
        <source>Επιλογές Χρωματικής Απεικόνισης</source>
        <translation>Επιλογές Χρωματικής Απεικόνισης</translation>
    </message>
    <message>
        <source>Επιλογή Γραφικών Παραστάσεων</source>
        <translation>Επιλογή Γραφικών Παραστάσεων</translation>
    </message>
    <message>
        <source>Επιλογές Μαθηματικού Μοντέλου Δυνάμεων που αναπτύσσονται κατά την κρούση</source>
        <translation>Επιλογές Μαθηματικού Μοντέλου Δυνάμεων που αναπτύσσονται κατά την κρούση</translation>
    </message>
    <message>
        <source>Διακόπτες Απεικόνισης Διανυσμάτων</source>
        <translation>Διακόπτες Απεικόνισης Διανυσμάτων</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης δυνάμεων</source>
        <translation>Έλεγχος γραφικής παράστασης δυνάμεων</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης μετατοπίσεων</source>
        <translation>Έλεγχος γραφικής παράστασης μετατοπίσεων</translation>
    </message>
    <message>
        <source>Έλεγχος γραφικής παράστασης ταχυτήτων</source>
        <translation>Έλεγχος γραφικής παράστασης ταχυτήτων</translation>
    </message>
    <message>
        <source>Διατήρηση αναλογίας αξόνων γραφικών παραστάσεων</source>
        <translation>Διατήρηση αναλογίας αξόνων γραφικών παραστάσεων</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης δυνάμεων</source>
        <translation>Έλεγχος απεικόνισης δυνάμεων</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης ταχυτήτων</source>
        <translation>Έλεγχος απεικόνισης ταχυτήτων</translation>
    </message>
    <message>
        <source>Γραμμική προσέγγιση συναρτήσεων ταχύτητας/δύναμης</source>
        <translation>Γραμμική προσέγγιση συναρτήσεων ταχύτητας/δύναμης</translation>
    </message>
    <message>
        <source>Συνέχεια Συνάρτησης Ταχύτητας</source>
        <translation>Συνέχεια Συνάρτησης Ταχύτητας</translation>
    </message>
    <message>
        <source>Συνέχεια Συνάρτησης Ταχύτητας/Δύναμης</source>
        <translation>Συνέχεια Συνάρτησης Ταχύτητας/Δύναμης</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 1ου σώματος</source>
        <translation>Επιλογή χρώματος 1ου σώματος</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 2ου σώματος</source>
        <translation>Επιλογή χρώματος 2ου σώματος</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων ταχύτητας</source>
        <translation>Επιλογή χρώματος διανυσμάτων ταχύτητας</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων δύναμης</source>
        <translation>Επιλογή χρώματος διανυσμάτων δύναμης</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 1ου σώματος</source>
        <translation>Τρέχον χρώμα 1ου σώματος</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 2ου σώματος</source>
        <translation>Τρέχον χρώμα 2ου σώματος</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων ταχύτητας</source>
        <translation>Τρέχον χρώμα διανυσμάτων ταχύτητας</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων δύναμης</source>
        <translation>Τρέχον χρώμα διανυσμάτων δύναμης</translation>
    </message>
</context>
<context>
    <name>CollisionLab</name>
    <message>
        <source>Results</source>
        <translation>Αποτελέσματα</translation>
    </message>
    <message>
        <source>Momentum and kinetic energy before and after the collision; saving</source>
        <translation>Ορμή και κινητική ενέργεια πριν και μετά την κρούση· αποθήκευση</translation>
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
        <translation>Πλήθη</translation>
    </message>
</context>
<context>
    <name>CollisionState</name>
    <message>
        <source>Initial positions and velocities lead to increasing distance of bodies.</source>
        <translation>Οι αρχικές θέσεις και ταχύτητες οδηγούν σε αύξηση της απόστασης των σωμάτων.</translation>
    </message>
    <message>
        <source>Bodies are overlaping!</source>
        <translation>Τα σώματα επικαλύπτονται!</translation>
    </message>
    <message>
        <source>x components of velocity are equal, thus leading to no collision.</source>
        <translation>Οι συνιστώσες x των ταχυτήτων είναι ίσες, οπότε δεν γίνεται κρούση.</translation>
    </message>
    <message>
        <source>y components of velocity are equal, thus leading to no collision.</source>
        <translation>Οι συνιστώσες y των ταχυτήτων είναι ίσες, οπότε δεν γίνεται κρούση.</translation>
    </message>
    <message>
        <source>Bodies are overlaping! Additionally, x components of velocity are equal, thus leading to no collision.</source>
        <translation>Τα σώματα επικαλύπτονται! Επιπλέον, οι συνιστώσες x των ταχυτήτων είναι ίσες, οπότε δεν γίνεται κρούση.</translation>
    </message>
    <message>
        <source>Bodies are overlaping! Additionally, y components of velocity are equal, thus leading to no collision.</source>
        <translation>Τα σώματα επικαλύπτονται! Επιπλέον, οι συνιστώσες y των ταχυτήτων είναι ίσες, οπότε δεν γίνεται κρούση.</translation>
    </message>
    <message>
        <source>Initial condition do not lead to a collision.</source>
        <translation>Οι αρχικές συνθήκες δεν οδηγούν σε κρούση.</translation>
    </message>
    <message>
        <source>Simulation Results</source>
        <translation>Αποτελέσματα Προσομοίωσης</translation>
    </message>
    <message>
        <source>Attention!<byte value="xd"/>%1 Please try again with different parameters by clicking on the button &quot;Options&quot;.</source>
        <translation>Προσοχή!<byte value="xd"/>%1 Παρακαλούμε δοκιμάστε ξανά με άλλες παραμέτρους πατώντας το κουμπί «Επιλογές».</translation>
    </message>
</context>
<context>
    <name>ColorChooser</name>
    <message>
        <source>ABC Color Selection</source>
        <translation>Επιλογή χρώματος</translation>
    </message>
</context>
<context>
    <name>FileExport</name>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2</source>
        <translation>Το αρχείο «%1» δεν μπόρεσε να γραφτεί: %2</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Αποθήκευση εικόνας</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>Εικόνες PNG (*.png)</translation>
    </message>
    <message>
        <source>Save data</source>
        <translation>Αποθήκευση δεδομένων</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Τιμές χωρισμένες με κόμμα (*.csv)</translation>
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
        <translation>Είστε βέβαιοι ότι θέλετε να βγείτε;</translation>
    </message>
    <message>
        <source>Floatrix</source>
        <translation>Floatrix</translation>
    </message>
    <message>
        <source>Sorry, feature not yet implemented</source>
        <translation>Λυπούμαστε, η λειτουργία δεν υπάρχει ακόμη</translation>
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
        <translation>Ενότητα:%1 , Σελίδα:%2</translation>
    </message>
    <message>
        <source>Collision Forms (view from above)</source>
        <translation>Μορφές κρούσης (κάτοψη)</translation>
    </message>
    <message>
        <source>Experiment (Side view) / Graphs</source>
        <translation>Πείραμα (πλάγια όψη) / Γραφικές παραστάσεις</translation>
    </message>
    <message>
        <source>Collisions are observed frequently in nature in every scale of observation. A collision can only macroscopically be described as a contact of bodies. In reality, repulsive forces cause a decrease/increase in veloctities of colliding bodies  and change their trajectories.</source>
        <translation>Οι κρούσεις παρατηρούνται συχνά στη φύση σε κάθε κλίμακα παρατήρησης. Μόνο μακροσκοπικά μπορεί μια κρούση να περιγραφεί ως επαφή σωμάτων. Στην πραγματικότητα, απωστικές δυνάμεις προκαλούν μείωση/αύξηση των ταχυτήτων των σωμάτων που συγκρούονται και αλλάζουν τις τροχιές τους.</translation>
    </message>
    <message>
        <source>In every collision the momentum is conserved, since this phenomenon is governed by internal forces. If, additionaly, kinetic energy is also conserved, then we have an elastic collision. If, after colliding, bodies stick together then we refer to a plastic collision. In this case kinetic energy is NOT conserved.</source>
        <translation>Σε κάθε κρούση η ορμή διατηρείται, αφού το φαινόμενο διέπεται από εσωτερικές δυνάμεις. Αν, επιπλέον, διατηρείται και η κινητική ενέργεια, τότε έχουμε ελαστική κρούση. Αν μετά την κρούση τα σώματα κολλήσουν μεταξύ τους, τότε μιλάμε για πλαστική κρούση. Στην περίπτωση αυτή η κινητική ενέργεια ΔΕΝ διατηρείται.</translation>
    </message>
    <message>
        <source>Of course there is the semi-elastic (or semi-plastic) collision, during which the bodies do not stick together, but the system&apos;s kinetic energy is not conserved.</source>
        <translation>Υπάρχει βέβαια και η ημιελαστική (ή ημιπλαστική) κρούση, κατά την οποία τα σώματα δεν κολλούν μεταξύ τους, αλλά η κινητική ενέργεια του συστήματος δεν διατηρείται.</translation>
    </message>
    <message>
        <source>In what follows we will experiment with the elastic collision, during which both the momentum and the kinetic energy of the system are conserved. By using these two principles we may derive appropriate equations in order to calculate the velocities after the collision. Specifically, these equations are:</source>
        <translation>Στη συνέχεια θα πειραματιστούμε με την ελαστική κρούση, κατά την οποία διατηρούνται τόσο η ορμή όσο και η κινητική ενέργεια του συστήματος. Με βάση αυτές τις δύο αρχές μπορούμε να βρούμε τις κατάλληλες εξισώσεις για να υπολογίσουμε τις ταχύτητες μετά την κρούση. Οι εξισώσεις αυτές είναι:</translation>
    </message>
    <message>
        <source>V1=(m2υ2+υ1(m1-m2))/mtot and</source>
        <translation>V1=(m2υ2+υ1(m1-m2))/mtot και</translation>
    </message>
    <message>
        <source>V2=(m1υ1+υ2(m2-m1))/mtot</source>
        <translation>V2=(m1υ1+υ2(m2-m1))/mtot</translation>
    </message>
    <message>
        <source>where mtot=m1+m2</source>
        <translation>όπου mtot=m1+m2</translation>
    </message>
</context>
<context>
    <name>LiquidPage</name>
    <message>
        <source>The picture %1 %2: the vessel is shown without it</source>
        <translation>Η εικόνα %1 %2: το δοχείο εμφανίζεται χωρίς αυτήν</translation>
    </message>
</context>
<context>
    <name>MDIMain</name>
    <message>
        <source>Ludophys - The Floatrixon (Floatrix)</source>
        <translation>Ludophys - Το Floatrixon (Floatrix)</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Περιεχόμενα</translation>
    </message>
    <message>
        <source>Introduction</source>
        <translation>Εισαγωγή</translation>
    </message>
    <message>
        <source>Macroscopic View</source>
        <translation>Μακροσκοπική Όψη</translation>
    </message>
    <message>
        <source>Microscopic View</source>
        <translation>Μικροσκοπική Όψη</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Επιλογές</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Βοήθεια</translation>
    </message>
    <message>
        <source>Search for...</source>
        <translation>Αναζήτηση...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Σχετικά...</translation>
    </message>
    <message>
        <source>Open views</source>
        <translation>Ανοιχτές όψεις</translation>
    </message>
</context>
<context>
    <name>MemoryStatus</name>
    <message>
        <source>Total physical memory: %1KB<byte value="xd"/>Available physical memory: %2KB</source>
        <translation>Συνολική φυσική μνήμη: %1KB<byte value="xd"/>Διαθέσιμη φυσική μνήμη: %2KB</translation>
    </message>
</context>
<context>
    <name>MicroViewExport</name>
    <message>
        <source>Save picture...</source>
        <translation>Αποθήκευση εικόνας...</translation>
    </message>
    <message>
        <source>Save this window&apos;s picture as a PNG file (Ctrl+Shift+S)</source>
        <translation>Αποθήκευση της εικόνας του παραθύρου ως αρχείο PNG (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Save data...</source>
        <translation>Αποθήκευση δεδομένων...</translation>
    </message>
    <message>
        <source>Save the current and mean wall forces of every tick since the last reset as a CSV file (Ctrl+S)</source>
        <translation>Αποθήκευση της τρέχουσας και της μέσης δύναμης στα τοιχώματα σε κάθε βήμα από τον τελευταίο μηδενισμό ως αρχείο CSV (Ctrl+S)</translation>
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
        <translation>Λείπει το πρόγραμμα αναπαραγωγής της ταινίας:
%1</translation>
    </message>
    <message>
        <source>The film player stopped working.</source>
        <translation>Το πρόγραμμα αναπαραγωγής της ταινίας σταμάτησε να λειτουργεί.</translation>
    </message>
</context>
<context>
    <name>MsgBox</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ναι</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Όχι</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Εντάξει</translation>
    </message>
</context>
<context>
    <name>ParameterDialog</name>
    <message>
        <source>Ok</source>
        <translation>Εντάξει</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Default values</source>
        <translation>Προκαθορισμένες τιμές</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>is missing</source>
        <translation>λείπει</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>δεν μπορεί να διαβαστεί</translation>
    </message>
</context>
<context>
    <name>ResultsPanel</name>
    <message>
        <source>Momentum and energy</source>
        <translation>Ορμή και ενέργεια</translation>
    </message>
    <message>
        <source>Save picture...</source>
        <translation>Εικόνα...</translation>
    </message>
    <message>
        <source>Save the picture as a PNG file (Ctrl+Shift+S)</source>
        <translation>Αποθήκευση της εικόνας ως αρχείο PNG (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Save data...</source>
        <translation>Δεδομένα...</translation>
    </message>
    <message>
        <source>Save every step of the last run as a CSV file (Ctrl+S)</source>
        <translation>Αποθήκευση κάθε βήματος της τελευταίας εκτέλεσης ως αρχείο CSV (Ctrl+S)</translation>
    </message>
    <message>
        <source>before</source>
        <translation>πριν</translation>
    </message>
    <message>
        <source>after</source>
        <translation>μετά</translation>
    </message>
    <message>
        <source>change</source>
        <translation>μεταβολή</translation>
    </message>
    <message>
        <source>Body 1</source>
        <translation>Σώμα 1</translation>
    </message>
    <message>
        <source>Body 2</source>
        <translation>Σώμα 2</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Σύστημα</translation>
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
        <translation>Εκτελέστε το πείραμα: η ορμή και η κινητική ενέργεια των σωμάτων πριν και μετά την κρούση εμφανίζονται εδώ.</translation>
    </message>
    <message>
        <source>Molecules in each half</source>
        <translation>Μόρια σε κάθε μισό</translation>
    </message>
    <message>
        <source>left</source>
        <translation>αριστερά</translation>
    </message>
    <message>
        <source>right</source>
        <translation>δεξιά</translation>
    </message>
    <message>
        <source>group %1</source>
        <translation>ομάδα %1</translation>
    </message>
</context>
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
    <name>RunTimeError</name>
    <message>
        <source>Overflow</source>
        <translation>Υπερχείλιση</translation>
    </message>
    <message>
        <source>Division by zero</source>
        <translation>Διαίρεση με το μηδέν</translation>
    </message>
    <message>
        <source>Subscript out of range</source>
        <translation>Δείκτης εκτός ορίων</translation>
    </message>
    <message>
        <source>Invalid procedure call or argument</source>
        <translation>Μη έγκυρη κλήση διαδικασίας ή όρισμα</translation>
    </message>
    <message>
        <source>Object variable or With block variable not set</source>
        <translation>Η μεταβλητή αντικειμένου ή μπλοκ With δεν έχει οριστεί</translation>
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
        <translation>Παράμετροι Ελαστικής Κρούσης</translation>
    </message>
    <message>
        <source>Μελέτης της υδροστατικής άνωσης με μέθοδο Monte Carlo</source>
        <translation>Μελέτης της υδροστατικής άνωσης με μέθοδο Monte Carlo</translation>
    </message>
    <message>
        <source>Parameters of Bodies</source>
        <translation>Παράμετροι Σωμάτων</translation>
    </message>
    <message>
        <source>First body:</source>
        <translation>Πρώτο σώμα:</translation>
    </message>
    <message>
        <source>Second Body:</source>
        <translation>Δεύτερο σώμα:</translation>
    </message>
    <message>
        <source>Graphs selection</source>
        <translation>Επιλογή γραφικών παραστάσεων</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Θέση</translation>
    </message>
    <message>
        <source>Velocity</source>
        <translation>Ταχύτ.</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Δύναμη</translation>
    </message>
    <message>
        <source>Proportional Graphs</source>
        <translation>Αναλογικές γραφικές</translation>
    </message>
    <message>
        <source>Central</source>
        <translation>Κεντρική</translation>
    </message>
    <message>
        <source>Πλάγια</source>
        <translation>Πλάγια</translation>
    </message>
    <message>
        <source>Elastic</source>
        <translation>Ελαστική</translation>
    </message>
    <message>
        <source>Plastic</source>
        <translation>Πλαστ.</translation>
    </message>
    <message>
        <source>Πλαστική κρούση: τα σώματα κινούνται μαζί μετά την επαφή</source>
        <translation>Πλαστική κρούση: τα σώματα κινούνται μαζί μετά την επαφή</translation>
    </message>
    <message>
        <source>View vectors</source>
        <translation>Εμφάνιση διανυσμάτων</translation>
    </message>
    <message>
        <source>Momentum</source>
        <translation>Ορμή</translation>
    </message>
    <message>
        <source>Έλεγχος απεικόνισης ορμών</source>
        <translation>Έλεγχος απεικόνισης ορμών</translation>
    </message>
    <message>
        <source>Mathematical Model</source>
        <translation>Μαθηματικό μοντέλο</translation>
    </message>
    <message>
        <source>Linear Model</source>
        <translation>Γραμμικό μοντέλο</translation>
    </message>
    <message>
        <source>u=f(t), continuous</source>
        <translation>u=f(t), συνεχής</translation>
    </message>
    <message>
        <source>u=f(t), F=f(t), continuous</source>
        <translation>u=f(t), F=f(t), συνεχείς</translation>
    </message>
    <message>
        <source>Color Selection</source>
        <translation>Επιλογή χρωμάτων</translation>
    </message>
    <message>
        <source>Body 1:</source>
        <translation>Σώμα 1:</translation>
    </message>
    <message>
        <source>Body 2:</source>
        <translation>Σώμα 2:</translation>
    </message>
    <message>
        <source>velocities:</source>
        <translation>ταχύτητες:</translation>
    </message>
    <message>
        <source>Forces:</source>
        <translation>Δυνάμεις:</translation>
    </message>
    <message>
        <source>Momenta:</source>
        <translation>Ορμές:</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος διανυσμάτων ορμής</source>
        <translation>Επιλογή χρώματος διανυσμάτων ορμής</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα διανυσμάτων ορμής</source>
        <translation>Τρέχον χρώμα διανυσμάτων ορμής</translation>
    </message>
    <message>
        <source>Κατηγοριοποίηση Κρούσεων</source>
        <translation>Κατηγοριοποίηση Κρούσεων</translation>
    </message>
    <message>
        <source>Mass of body %1 (kg)</source>
        <translation>Μάζα του σώματος %1 (kg)</translation>
    </message>
    <message>
        <source>Radius of body %1 (m)</source>
        <translation>Ακτίνα του σώματος %1 (m)</translation>
    </message>
    <message>
        <source>Position x of body %1 (m)</source>
        <translation>Θέση x του σώματος %1 (m)</translation>
    </message>
    <message>
        <source>Position y of body %1 (m)</source>
        <translation>Θέση y του σώματος %1 (m)</translation>
    </message>
    <message>
        <source>Velocity x of body %1 (m/s)</source>
        <translation>Ταχύτητα x του σώματος %1 (m/s)</translation>
    </message>
    <message>
        <source>Velocity y of body %1 (m/s)</source>
        <translation>Ταχύτητα y του σώματος %1 (m/s)</translation>
    </message>
    <message>
        <source>Colour of body 1</source>
        <translation>Χρώμα του σώματος 1</translation>
    </message>
    <message>
        <source>Colour of body 2</source>
        <translation>Χρώμα του σώματος 2</translation>
    </message>
    <message>
        <source>Colour of the velocities</source>
        <translation>Χρώμα των ταχυτήτων</translation>
    </message>
    <message>
        <source>Colour of the forces</source>
        <translation>Χρώμα των δυνάμεων</translation>
    </message>
    <message>
        <source>Distance graph</source>
        <translation>Γραφική παράσταση απόστασης</translation>
    </message>
    <message>
        <source>Velocity graph</source>
        <translation>Γραφική παράσταση ταχύτητας</translation>
    </message>
    <message>
        <source>Force graph</source>
        <translation>Γραφική παράσταση δύναμης</translation>
    </message>
    <message>
        <source>Velocity vectors</source>
        <translation>Διανύσματα ταχύτητας</translation>
    </message>
    <message>
        <source>Force vectors</source>
        <translation>Διανύσματα δύναμης</translation>
    </message>
    <message>
        <source>Momentum vectors</source>
        <translation>Διανύσματα ορμής</translation>
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
        <translation>Φυσική στα παραδοσιακά παιχνίδια</translation>
    </message>
    <message>
        <source>Floatrixon (Floatrix)</source>
        <translation>Floatrixon (Floatrix)</translation>
    </message>
    <message>
        <source>Simulation Program</source>
        <translation>Πρόγραμμα Προσομοίωσης</translation>
    </message>
    <message>
        <source>Version 1.0</source>
        <translation>Έκδοση 1.0</translation>
    </message>
    <message>
        <source>© 2026 The Floatrix Team</source>
        <translation>© 2026 Η ομάδα του Floatrix</translation>
    </message>
    <message>
        <source>Physics Education Software</source>
        <translation>Εκπαιδευτικό λογισμικό Φυσικής</translation>
    </message>
    <message>
        <source>Free for schools and learners everywhere</source>
        <translation>Ελεύθερο για σχολεία και μαθητές παντού</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Σχετικά...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Εντάξει</translation>
    </message>
    <message>
        <source>Floatrixon (Floatrix), a simulation program of the Ludophys series</source>
        <translation>Floatrixon (Floatrix), πρόγραμμα προσομοίωσης της σειράς Ludophys</translation>
    </message>
    <message>
        <source>Floatrix</source>
        <translation>Floatrix</translation>
    </message>
    <message>
        <source>Physical memory of this computer</source>
        <translation>Φυσική μνήμη αυτού του υπολογιστή</translation>
    </message>
    <message>
        <source>Close the About box</source>
        <translation>Κλείσιμο του πλαισίου «Σχετικά»</translation>
    </message>
</context>
<context>
    <name>frmIntroduction</name>
    <message>
        <source>Introduction</source>
        <translation>Εισαγωγή</translation>
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
        <translation>Ενότητα:</translation>
    </message>
    <message>
        <source>Page:</source>
        <translation>Σελίδα:</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Μετάβαση</translation>
    </message>
    <message>
        <source>Simulation</source>
        <translation>Προσομοίωση</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Βήμα</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Επιλογές</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Καθυστέρηση</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Επεξήγηση</translation>
    </message>
    <message>
        <source>select unit</source>
        <translation>επιλογή ενότητας</translation>
    </message>
    <message>
        <source>Select page</source>
        <translation>Επιλογή σελίδας</translation>
    </message>
    <message>
        <source>Select Unit</source>
        <translation>Επιλογή ενότητας</translation>
    </message>
    <message>
        <source>Select Page</source>
        <translation>Επιλογή σελίδας</translation>
    </message>
    <message>
        <source>Visualisation</source>
        <translation>Απεικόνιση</translation>
    </message>
    <message>
        <source>Exit introduction</source>
        <translation>Έξοδος από την εισαγωγή</translation>
    </message>
    <message>
        <source>Go to previous unit</source>
        <translation>Μετάβαση στην προηγούμενη ενότητα</translation>
    </message>
    <message>
        <source>Go to previous page</source>
        <translation>Μετάβαση στην προηγούμενη σελίδα</translation>
    </message>
    <message>
        <source>Go to next page</source>
        <translation>Μετάβαση στην επόμενη σελίδα</translation>
    </message>
    <message>
        <source>Go to next unit</source>
        <translation>Μετάβαση στην επόμενη ενότητα</translation>
    </message>
    <message>
        <source>Go to Unit and/or Page</source>
        <translation>Μετάβαση σε ενότητα και/ή σελίδα</translation>
    </message>
    <message>
        <source>Define collision parameters</source>
        <translation>Ορισμός των παραμέτρων της κρούσης</translation>
    </message>
    <message>
        <source>The Floatrixon - A modern Greek game</source>
        <translation>Το Floatrixon - Ένα νεοελληνικό παιχνίδι</translation>
    </message>
    <message>
        <source>Previous unit</source>
        <translation>Προηγούμενη ενότητα</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Προηγούμενη σελίδα</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Επόμενη σελίδα</translation>
    </message>
    <message>
        <source>Next unit</source>
        <translation>Επόμενη ενότητα</translation>
    </message>
    <message>
        <source>Unit number</source>
        <translation>Αριθμός ενότητας</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Αριθμός σελίδας</translation>
    </message>
    <message>
        <source>Explanation of the page</source>
        <translation>Επεξήγηση της σελίδας</translation>
    </message>
    <message>
        <source>Delay of the simulation</source>
        <translation>Καθυστέρηση της προσομοίωσης</translation>
    </message>
    <message>
        <source>The page&apos;s picture, with its experiment when it has one</source>
        <translation>Η εικόνα της σελίδας, με το πείραμά της όταν έχει</translation>
    </message>
</context>
<context>
    <name>frmLGOptions</name>
    <message>
        <source>Parameters of Gas Molecules</source>
        <translation>Παράμετροι μορίων αερίου</translation>
    </message>
    <message>
        <source># of rows</source>
        <translation>Σειρές</translation>
    </message>
    <message>
        <source># of columns</source>
        <translation>Στήλες</translation>
    </message>
    <message>
        <source>First kind:</source>
        <translation>Πρώτο είδος:</translation>
    </message>
    <message>
        <source>Second kind:</source>
        <translation>Δεύτερο είδος:</translation>
    </message>
    <message>
        <source>Επιλογές Απεικόνισης Μορίων Ρευστών</source>
        <translation>Επιλογές Απεικόνισης Μορίων Ρευστών</translation>
    </message>
    <message>
        <source>Πλήθος σειρών μορίων</source>
        <translation>Πλήθος σειρών μορίων</translation>
    </message>
    <message>
        <source>Πλήθος στηλών μορίων</source>
        <translation>Πλήθος στηλών μορίων</translation>
    </message>
    <message>
        <source>Εισαγωγή πλήθους σειρών μορίων (1,%1]</source>
        <translation>Εισαγωγή πλήθους σειρών μορίων (1,%1]</translation>
    </message>
    <message>
        <source>Εισαγωγή πλήθους στηλών μορίων (1,%1]</source>
        <translation>Εισαγωγή πλήθους στηλών μορίων (1,%1]</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 1ης ομάδας μορίων</source>
        <translation>Επιλογή χρώματος 1ης ομάδας μορίων</translation>
    </message>
    <message>
        <source>Επιλογή χρώματος 2ης ομάδας μορίων</source>
        <translation>Επιλογή χρώματος 2ης ομάδας μορίων</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 1ης ομάδας μορίων</source>
        <translation>Τρέχον χρώμα 1ης ομάδας μορίων</translation>
    </message>
    <message>
        <source>Τρέχον χρώμα 2ης ομάδας μορίων</source>
        <translation>Τρέχον χρώμα 2ης ομάδας μορίων</translation>
    </message>
    <message>
        <source>Number of rows of molecules</source>
        <translation>Πλήθος σειρών μορίων</translation>
    </message>
    <message>
        <source>Number of columns of molecules</source>
        <translation>Πλήθος στηλών μορίων</translation>
    </message>
    <message>
        <source>Colour of the first kind of molecules</source>
        <translation>Χρώμα του πρώτου είδους μορίων</translation>
    </message>
    <message>
        <source>Colour of the second kind of molecules</source>
        <translation>Χρώμα του δεύτερου είδους μορίων</translation>
    </message>
</context>
<context>
    <name>frmMacroView</name>
    <message>
        <source>Macroscopic View</source>
        <translation>Μακροσκοπική Όψη</translation>
    </message>
    <message>
        <source>A Floatrixon rising into the evening sky</source>
        <translation>Ένα Floatrixon υψώνεται στον βραδινό ουρανό</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Προβολή</translation>
    </message>
    <message>
        <source>Play the film from where it stands</source>
        <translation>Αναπαραγωγή της ταινίας από το σημείο όπου βρίσκεται</translation>
    </message>
    <message>
        <source>Close the macroscopic view</source>
        <translation>Κλείσιμο της μακροσκοπικής όψης</translation>
    </message>
    <message>
        <source>The film cannot be shown.

&quot;floatrixo.avi&quot; is missing from the program&apos;s folder:
%1</source>
        <translation>Η ταινία δεν μπορεί να προβληθεί.

Το «floatrixo.avi» λείπει από τον φάκελο του προγράμματος:
%1</translation>
    </message>
    <message>
        <source>The film cannot be shown.

&quot;floatrixo.avi&quot; could not be played:
%1</source>
        <translation>Η ταινία δεν μπορεί να προβληθεί.

Το «floatrixo.avi» δεν μπόρεσε να αναπαραχθεί:
%1</translation>
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
    <message>
        <source>Left Wall</source>
        <translation>Αριστερό τοίχωμα</translation>
    </message>
    <message>
        <source>Right Wall</source>
        <translation>Δεξί τοίχωμα</translation>
    </message>
    <message>
        <source>Top Wall</source>
        <translation>Πάνω τοίχωμα</translation>
    </message>
    <message>
        <source>Microscopic view of gas molecules&apos; movement</source>
        <translation>Μικροσκοπική όψη της κίνησης των μορίων του αερίου</translation>
    </message>
    <message>
        <source>Top Wall Calculations</source>
        <translation>Δυνάμεις πάνω</translation>
    </message>
    <message>
        <source>Calculations of Totals</source>
        <translation>Υπολογισμοί συνόλων</translation>
    </message>
    <message>
        <source>Left Wall Calculations</source>
        <translation>Δυνάμεις αριστερά</translation>
    </message>
    <message>
        <source>Right Wall Calculations</source>
        <translation>Δυνάμεις δεξιά</translation>
    </message>
    <message>
        <source>  Fx =</source>
        <translation>  Fx =</translation>
    </message>
    <message>
        <source>Current value of force on left wall</source>
        <translation>Τρέχουσα τιμή της δύναμης στο αριστερό τοίχωμα</translation>
    </message>
    <message>
        <source>&lt;Fx&gt; =</source>
        <translation>&lt;Fx&gt; =</translation>
    </message>
    <message>
        <source>Mean value of force on left wall</source>
        <translation>Μέση τιμή της δύναμης στο αριστερό τοίχωμα</translation>
    </message>
    <message>
        <source>Current value of force on right wall</source>
        <translation>Τρέχουσα τιμή της δύναμης στο δεξί τοίχωμα</translation>
    </message>
    <message>
        <source>Mean value of force on right wall</source>
        <translation>Μέση τιμή της δύναμης στο δεξί τοίχωμα</translation>
    </message>
    <message>
        <source>  Fy =</source>
        <translation>  Fy =</translation>
    </message>
    <message>
        <source>Current value of force on top wall</source>
        <translation>Τρέχουσα τιμή της δύναμης στο πάνω τοίχωμα</translation>
    </message>
    <message>
        <source>&lt;Fy&gt; =</source>
        <translation>&lt;Fy&gt; =</translation>
    </message>
    <message>
        <source>Mean value of force on top wall</source>
        <translation>Μέση τιμή της δύναμης στο πάνω τοίχωμα</translation>
    </message>
    <message>
        <source>Mean value (in time) of horizontal force</source>
        <translation>Μέση τιμή (στον χρόνο) της οριζόντιας δύναμης</translation>
    </message>
    <message>
        <source>Mean value (in time) of vertical force</source>
        <translation>Μέση τιμή (στον χρόνο) της κατακόρυφης δύναμης</translation>
    </message>
    <message>
        <source>Macroscopic Movement</source>
        <translation>Μακροσκοπική κίνηση</translation>
    </message>
    <message>
        <source>Macroscopic view of Floatrix&apos;s direction of movement</source>
        <translation>Μακροσκοπική όψη της κατεύθυνσης κίνησης του Floatrix</translation>
    </message>
    <message>
        <source>Horizontal force indicator</source>
        <translation>Δείκτης οριζόντιας δύναμης</translation>
    </message>
    <message>
        <source>Vertical force indicator</source>
        <translation>Δείκτης κατακόρυφης δύναμης</translation>
    </message>
    <message>
        <source># of columns of molecules</source>
        <translation>Πλήθος στηλών μορίων</translation>
    </message>
    <message>
        <source># of rows of molecules</source>
        <translation>Πλήθος σειρών μορίων</translation>
    </message>
    <message>
        <source>Molecules&apos; mass</source>
        <translation>Μάζα μορίων</translation>
    </message>
    <message>
        <source>Molecules&apos; radius</source>
        <translation>Ακτίνα μορίων</translation>
    </message>
    <message>
        <source>Time &quot;step&quot; of simulation</source>
        <translation>Χρονικό «βήμα» της προσομοίωσης</translation>
    </message>
    <message>
        <source>Temperature of sample (K)</source>
        <translation>Θερμοκρασία του δείγματος (K)</translation>
    </message>
    <message>
        <source>Draw Grid</source>
        <translation>Πλέγμα</translation>
    </message>
    <message>
        <source>Check to draw lattice grid</source>
        <translation>Επιλέξτε για να σχεδιαστεί το πλέγμα</translation>
    </message>
    <message>
        <source>Draw molecule distance</source>
        <translation>Απόσταση μορίων</translation>
    </message>
    <message>
        <source>Check to draw molecules&apos; current distance from lattice positions</source>
        <translation>Επιλέξτε για να σχεδιαστεί η τρέχουσα απόσταση των μορίων από τις θέσεις του πλέγματος</translation>
    </message>
    <message>
        <source>Random Draw  Color</source>
        <translation>Τυχαίο χρώμα</translation>
    </message>
    <message>
        <source>Check to draw molecules in random colors</source>
        <translation>Επιλέξτε για να σχεδιαστούν τα μόρια σε τυχαία χρώματα</translation>
    </message>
    <message>
        <source>&quot;Compact&quot; molecules</source>
        <translation>«Συμπαγή» μόρια</translation>
    </message>
    <message>
        <source>Check to draw solid molecules</source>
        <translation>Επιλέξτε για να σχεδιαστούν γεμάτα μόρια</translation>
    </message>
    <message>
        <source>Track movement</source>
        <translation>Ίχνη κίνησης</translation>
    </message>
    <message>
        <source>Check to make molecules&apos; paths visible</source>
        <translation>Επιλέξτε για να φαίνονται οι διαδρομές των μορίων</translation>
    </message>
    <message>
        <source>Observe Molecule</source>
        <translation>Παρατήρηση</translation>
    </message>
    <message>
        <source>Check to observe a single molecules of the sample</source>
        <translation>Επιλέξτε για να παρατηρήσετε ένα μόριο του δείγματος</translation>
    </message>
    <message>
        <source>Perturbation</source>
        <translation>Διαταραχή</translation>
    </message>
    <message>
        <source>Check to introduce perturbation in the molecules&apos; movement</source>
        <translation>Επιλέξτε για να εισαχθεί διαταραχή στην κίνηση των μορίων</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Clear history</source>
        <translation>Μηδενισμός</translation>
    </message>
    <message>
        <source>Click to exit</source>
        <translation>Πατήστε για έξοδο</translation>
    </message>
    <message>
        <source>Click to restart calculations of mean force values</source>
        <translation>Πατήστε για να ξαναρχίσει ο υπολογισμός των μέσων τιμών των δυνάμεων</translation>
    </message>
    <message>
        <source>Microscopic View of Gas</source>
        <translation>Μικροσκοπική Όψη Αερίου</translation>
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
        <translation>Πλήθος μορίων κατά x</translation>
    </message>
    <message>
        <source>Number of molecules along y</source>
        <translation>Πλήθος μορίων κατά y</translation>
    </message>
    <message>
        <source>Mass of a molecule</source>
        <translation>Μάζα ενός μορίου</translation>
    </message>
    <message>
        <source>Radius of a molecule</source>
        <translation>Ακτίνα ενός μορίου</translation>
    </message>
    <message>
        <source>Time step of the simulation</source>
        <translation>Χρονικό βήμα της προσομοίωσης</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Θερμοκρασία</translation>
    </message>
    <message>
        <source>Molecules at the left wall</source>
        <translation>Μόρια στο αριστερό τοίχωμα</translation>
    </message>
    <message>
        <source>Molecules at the right wall</source>
        <translation>Μόρια στο δεξί τοίχωμα</translation>
    </message>
    <message>
        <source>Molecules at the top wall</source>
        <translation>Μόρια στο πάνω τοίχωμα</translation>
    </message>
    <message>
        <source>The balloon and the direction the gas pushes it</source>
        <translation>Το αερόστατο και η κατεύθυνση προς την οποία το σπρώχνει το αέριο</translation>
    </message>
    <message>
        <source>Horizontal force on the balloon</source>
        <translation>Οριζόντια δύναμη στο αερόστατο</translation>
    </message>
    <message>
        <source>Vertical force on the balloon</source>
        <translation>Κατακόρυφη δύναμη στο αερόστατο</translation>
    </message>
</context>
<context>
    <name>suppl</name>
    <message>
        <source>Accept parameter values and exit</source>
        <translation>Αποδοχή των τιμών και έξοδος</translation>
    </message>
    <message>
        <source>Cancel changes and exit</source>
        <translation>Ακύρωση των αλλαγών και έξοδος</translation>
    </message>
    <message>
        <source>Default values for all parameters</source>
        <translation>Προκαθορισμένες τιμές για όλες τις παραμέτρους</translation>
    </message>
</context>
</TS>
