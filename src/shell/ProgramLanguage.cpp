#include "ProgramLanguage.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

bool ProgramLanguage::load(const QString& language)
{
    if (language.isEmpty())
        return true;
    // The catalogues live as long as the application, which owns them.
    auto* own = new QTranslator(QCoreApplication::instance());
    if (!own->load(QStringLiteral(":/i18n/floatrix_%1.qm").arg(language)))
        return false;
    QCoreApplication::installTranslator(own);
    auto* toolkit = new QTranslator(QCoreApplication::instance());
    if (toolkit->load(QStringLiteral("qtbase_%1").arg(language), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(toolkit);
    return true;
}
