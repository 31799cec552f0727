#include "desktop/translations.h"

#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

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

// English stands in no table, yet whoever prefers it to another known language gets it.
QString spokenLanguage(const QString& chosen, const QStringList& wanted)
{
    const QStringList known = knownLanguages();
    if (known.contains(chosen))
        return chosen;
    for (const QString& tag : wanted) {
        const QString language = tag.section(u'-', 0, 0);
        if (known.contains(language))
            return language;
    }
    return known.first();
}

void installTranslations(QApplication& application, const QString& language)
{
    const QString spoken = spokenLanguage(language, QLocale::system().uiLanguages());
    for (QTranslator* const earlier :
         application.findChildren<QTranslator*>(ownName, Qt::FindDirectChildrenOnly))
        delete earlier;
    install(application, u"qtbase_"_s + spoken, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    install(application, u"zelvor_"_s + spoken, tables);
}

} // namespace zelvor
