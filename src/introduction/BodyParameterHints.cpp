#include "BodyParameterHints.h"

#include <QCoreApplication>
#include <QHash>

#include <vector>

namespace BodyParameterHints {

namespace {

// The hints are translated in the context "BodyParameterHints"; %1 is the body's
// number and %2 the limit of a range.
QString tr(const char* text)
{
    return QCoreApplication::translate("BodyParameterHints", text);
}

QString withBody(const char* text, int n)
{
    return tr(text).arg(n);
}

} // namespace

QString labelHint(int kind, int n)
{
    switch (kind) {
    case Mass:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Μάζα %1ου σώματος"), n);
    case Radius:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ακτίνα %1ου σώματος"), n);
    case PositionX:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Αρχική θέση (x-άξονας) %1ου σώματος"), n);
    case PositionY:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Αρχική θέση (y-άξονας) %1ου σώματος"), n);
    case VelocityX:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ταχύτητα %1ου σώματος στον x-άξονα"), n);
    case VelocityY:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ταχύτητα %1ου σώματος στον y-άξονα"), n);
    default:
        return QString();
    }
}

QString unitHint(int index)
{
    const int n = index / KindCount + 1;
    switch (index % KindCount) {
    case Mass:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Μάζα %1ου σώματος (σε kgr)"), n);
    case Radius:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ακτίνα %1ου σώματος (σε m)"), n);
    // The position hints of the unit labels run the body's number on.
    case PositionX:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Αρχική θέση (x-άξονας)%1ου σώματος (σε m)"), n);
    case PositionY:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Αρχική θέση (y-άξονας)%1ου σώματος (σε m)"), n);
    case VelocityX:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ταχύτητα %1ου σώματος στον x-άξονα (σε m/sec)"), n);
    default:
        return withBody(QT_TRANSLATE_NOOP("BodyParameterHints", "Ταχύτητα %1ου σώματος στον y-άξονα (σε m/sec)"), n);
    }
}

QString fieldHint(int kind, int n, int16_t max)
{
    const char* text = nullptr;
    switch (kind) {
    case Mass:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή μάζας %1ου σώματος (0,%2]");
        break;
    case Radius:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή ακτίνας %1ου σώματος (0,%2]");
        break;
    case PositionX:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή αρχικής θέσης (x-άξονας) %1ου σώματος [-%2,%2]");
        break;
    case PositionY:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή αρχικής θέσης (y-άξονας) %1ου σώματος [-%2,%2]");
        break;
    case VelocityX:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή ταχύτητας %1ου σώματος στον x-άξονα [-%2,%2]");
        break;
    case VelocityY:
        text = QT_TRANSLATE_NOOP("BodyParameterHints", "Εισαγωγή ταχύτητας %1ου σώματος στον y-άξονα [-%2,%2]");
        break;
    default:
        return QString();
    }
    return tr(text).arg(QString::number(n), QString::number(max));
}

QString controlHint(const QString& name, int index)
{
    static const QHash<QString, const char*> single = {
        {QStringLiteral("fraCollisionData"), QT_TRANSLATE_NOOP("BodyParameterHints", "Παράμετροι κρούσης")},
        {QStringLiteral("fraColors"), QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογές Χρωματικής Απεικόνισης")},
        {QStringLiteral("fraGraphs"), QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογή Γραφικών Παραστάσεων")},
        {QStringLiteral("fraModel"),
            QT_TRANSLATE_NOOP(
                "BodyParameterHints", "Επιλογές Μαθηματικού Μοντέλου Δυνάμεων που αναπτύσσονται κατά την κρούση")},
        {QStringLiteral("fraVisualisationOption"),
            QT_TRANSLATE_NOOP("BodyParameterHints", "Διακόπτες Απεικόνισης Διανυσμάτων")},
        {QStringLiteral("chkGraphF"), QT_TRANSLATE_NOOP("BodyParameterHints", "Έλεγχος γραφικής παράστασης δυνάμεων")},
        {QStringLiteral("chkGraphS"),
            QT_TRANSLATE_NOOP("BodyParameterHints", "Έλεγχος γραφικής παράστασης μετατοπίσεων")},
        {QStringLiteral("chkGraphU"), QT_TRANSLATE_NOOP("BodyParameterHints", "Έλεγχος γραφικής παράστασης ταχυτήτων")},
        {QStringLiteral("chkProportional"),
            QT_TRANSLATE_NOOP("BodyParameterHints", "Διατήρηση αναλογίας αξόνων γραφικών παραστάσεων")},
        {QStringLiteral("chkShowForces"), QT_TRANSLATE_NOOP("BodyParameterHints", "Έλεγχος απεικόνισης δυνάμεων")},
        {QStringLiteral("chkShowVelocities"), QT_TRANSLATE_NOOP("BodyParameterHints", "Έλεγχος απεικόνισης ταχυτήτων")},
    };
    static const QHash<QString, std::vector<const char*>> indexed = {
        {QStringLiteral("optModel"),
            {QT_TRANSLATE_NOOP("BodyParameterHints", "Γραμμική προσέγγιση συναρτήσεων ταχύτητας/δύναμης"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Συνέχεια Συνάρτησης Ταχύτητας"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Συνέχεια Συνάρτησης Ταχύτητας/Δύναμης")}},
        {QStringLiteral("lblColorSelection"),
            {QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογή χρώματος 1ου σώματος"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογή χρώματος 2ου σώματος"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογή χρώματος διανυσμάτων ταχύτητας"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Επιλογή χρώματος διανυσμάτων δύναμης")}},
        {QStringLiteral("lblCurrentColor"),
            {QT_TRANSLATE_NOOP("BodyParameterHints", "Τρέχον χρώμα 1ου σώματος"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Τρέχον χρώμα 2ου σώματος"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Τρέχον χρώμα διανυσμάτων ταχύτητας"),
                QT_TRANSLATE_NOOP("BodyParameterHints", "Τρέχον χρώμα διανυσμάτων δύναμης")}},
    };
    if (single.contains(name))
        return tr(single.value(name));
    const QString family = name == QStringLiteral("cmdColorSelection") ? QStringLiteral("lblColorSelection") : name;
    const auto texts = indexed.find(family);
    if (texts == indexed.end() || index < 0 || index >= int(texts->size()))
        return QString();
    return tr((*texts)[size_t(index)]);
}

} // namespace BodyParameterHints
