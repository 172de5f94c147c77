#include "BodyParameterHints.h"

#include <QHash>
#include <QStringList>

namespace BodyParameterHints {

namespace {

QString ordinal(int n)
{
    return QString::number(n) + QStringLiteral("ου σώματος");
}

} // namespace

QString labelHint(int kind, int n)
{
    switch (kind) {
    case Mass:
        return QStringLiteral("Μάζα ") + ordinal(n);
    case Radius:
        return QStringLiteral("Ακτίνα ") + ordinal(n);
    case PositionX:
        return QStringLiteral("Αρχική θέση (x-άξονας) ") + ordinal(n);
    case PositionY:
        return QStringLiteral("Αρχική θέση (y-άξονας) ") + ordinal(n);
    case VelocityX:
        return QStringLiteral("Ταχύτητα ") + ordinal(n) + QStringLiteral(" στον x-άξονα");
    case VelocityY:
        return QStringLiteral("Ταχύτητα ") + ordinal(n) + QStringLiteral(" στον y-άξονα");
    default:
        return QString();
    }
}

QString unitHint(int index)
{
    const int n = index / KindCount + 1;
    switch (index % KindCount) {
    case Mass:
        return labelHint(Mass, n) + QStringLiteral(" (σε kgr)");
    case Radius:
        return labelHint(Radius, n) + QStringLiteral(" (σε m)");
    // The position hints of the unit labels run the body's number on.
    case PositionX:
        return QStringLiteral("Αρχική θέση (x-άξονας)") + ordinal(n) + QStringLiteral(" (σε m)");
    case PositionY:
        return QStringLiteral("Αρχική θέση (y-άξονας)") + ordinal(n) + QStringLiteral(" (σε m)");
    case VelocityX:
        return labelHint(VelocityX, n) + QStringLiteral(" (σε m/sec)");
    default:
        return labelHint(VelocityY, n) + QStringLiteral(" (σε m/sec)");
    }
}

QString fieldHint(int kind, int n, int16_t max)
{
    const QString limit = QString::number(max);
    const QString symmetric = QStringLiteral(" [-") + limit + QStringLiteral(",") + limit + QStringLiteral("]");
    switch (kind) {
    case Mass:
        return QStringLiteral("Εισαγωγή μάζας ") + ordinal(n) + QStringLiteral(" (0,") + limit + QStringLiteral("]");
    case Radius:
        return QStringLiteral("Εισαγωγή ακτίνας ") + ordinal(n) + QStringLiteral(" (0,") + limit + QStringLiteral("]");
    case PositionX:
        return QStringLiteral("Εισαγωγή αρχικής θέσης (x-άξονας) ") + ordinal(n) + symmetric;
    case PositionY:
        return QStringLiteral("Εισαγωγή αρχικής θέσης (y-άξονας) ") + ordinal(n) + symmetric;
    case VelocityX:
        return QStringLiteral("Εισαγωγή ταχύτητας ") + ordinal(n) + QStringLiteral(" στον x-άξονα") + symmetric;
    case VelocityY:
        return QStringLiteral("Εισαγωγή ταχύτητας ") + ordinal(n) + QStringLiteral(" στον y-άξονα") + symmetric;
    default:
        return QString();
    }
}

QString controlHint(const QString& name, int index)
{
    static const QHash<QString, QString> single = {
        {QStringLiteral("fraCollisionData"), QStringLiteral("Παράμετροι κρούσης")},
        {QStringLiteral("fraColors"), QStringLiteral("Επιλογές Χρωματικής Απεικόνισης")},
        {QStringLiteral("fraGraphs"), QStringLiteral("Επιλογή Γραφικών Παραστάσεων")},
        {QStringLiteral("fraModel"),
            QStringLiteral("Επιλογές Μαθηματικού Μοντέλου Δυνάμεων που αναπτύσσονται κατά την κρούση")},
        {QStringLiteral("fraVisualisationOption"), QStringLiteral("Διακόπτες Απεικόνισης Διανυσμάτων")},
        {QStringLiteral("chkGraphF"), QStringLiteral("Έλεγχος γραφικής παράστασης δυνάμεων")},
        {QStringLiteral("chkGraphS"), QStringLiteral("Έλεγχος γραφικής παράστασης μετατοπίσεων")},
        {QStringLiteral("chkGraphU"), QStringLiteral("Έλεγχος γραφικής παράστασης ταχυτήτων")},
        {QStringLiteral("chkProportional"), QStringLiteral("Διατήρηση αναλογίας αξόνων γραφικών παραστάσεων")},
        {QStringLiteral("chkShowForces"), QStringLiteral("Έλεγχος απεικόνισης δυνάμεων")},
        {QStringLiteral("chkShowVelocities"), QStringLiteral("Έλεγχος απεικόνισης ταχυτήτων")},
    };
    static const QHash<QString, QStringList> indexed = {
        {QStringLiteral("optModel"),
            {QStringLiteral("Γραμμική προσέγγιση συναρτήσεων ταχύτητας/δύναμης"),
                QStringLiteral("Συνέχεια Συνάρτησης Ταχύτητας"),
                QStringLiteral("Συνέχεια Συνάρτησης Ταχύτητας/Δύναμης")}},
        {QStringLiteral("lblColorSelection"),
            {QStringLiteral("Επιλογή χρώματος 1ου σώματος"), QStringLiteral("Επιλογή χρώματος 2ου σώματος"),
                QStringLiteral("Επιλογή χρώματος διανυσμάτων ταχύτητας"),
                QStringLiteral("Επιλογή χρώματος διανυσμάτων δύναμης")}},
        {QStringLiteral("lblCurrentColor"),
            {QStringLiteral("Τρέχον χρώμα 1ου σώματος"), QStringLiteral("Τρέχον χρώμα 2ου σώματος"),
                QStringLiteral("Τρέχον χρώμα διανυσμάτων ταχύτητας"),
                QStringLiteral("Τρέχον χρώμα διανυσμάτων δύναμης")}},
    };
    if (single.contains(name))
        return single.value(name);
    const QString family = name == QStringLiteral("cmdColorSelection") ? QStringLiteral("lblColorSelection") : name;
    const QStringList texts = indexed.value(family);
    return index >= 0 && index < texts.size() ? texts[index] : QString();
}

} // namespace BodyParameterHints
