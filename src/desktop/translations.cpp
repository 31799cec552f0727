#include "desktop/translations.h"

#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

// A static library's resources are dropped unless somebody asks for them, and the macro wants no namespace.
static void loadTranslationResources()
{
    Q_INIT_RESOURCE(translations);
}

namespace zelvor {

namespace {

constexpr auto tables = ":/zelvor/translations"_L1;
constexpr auto ownName = "translation"_L1;

// The first known of the desktop's languages. English stands in no table, yet whoever prefers it to Russian
// gets it.
QString desktopLanguage(const QStringList& known)
{
    for (const QString& tag : QLocale::system().uiLanguages()) {
        const QString language = tag.section(u'-', 0, 0);
        if (known.contains(language))
            return language;
    }
    return known.first();
}

// The application owns what it speaks, and an earlier choice goes when a new one comes.
void install(QApplication& application, const QString& fileName, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(fileName, folder))
        return;
    translator->setObjectName(ownName);
    translator->setParent(&application);
    QApplication::installTranslator(translator.release());
}

} // namespace

QStringList knownLanguages()
{
    loadTranslationResources();
    QStringList languages{u"en"_s};
    for (const QString& file : QDir(tables).entryList({u"zelvor_*.qm"_s}, QDir::Files, QDir::Name))
        languages.append(file.section(u'_', 1).section(u'.', 0, 0));
    return languages;
}

void installTranslations(QApplication& application, const QString& language)
{
    const QStringList known = knownLanguages();
    const QString spoken = known.contains(language) ? language : desktopLanguage(known);
    for (QTranslator* const earlier :
         application.findChildren<QTranslator*>(ownName, Qt::FindDirectChildrenOnly))
        delete earlier;
    if (spoken == known.first())
        return;
    install(application, u"qtbase_"_s + spoken, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(application, u"zelvor_"_s + spoken, tables);
}

} // namespace zelvor
