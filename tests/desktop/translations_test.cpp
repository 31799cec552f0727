#include "desktop/translations.h"

#include "core/doc_type.h"
#include "core/localized.h"
#include "desktop/page.h"
#include "store/menu.h"
#include "support/desktop_program.h"

#include <gtest/gtest.h>

#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeView>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

QHeaderView* headerOf(QAbstractItemView& list)
{
    if (auto* const table = qobject_cast<QTableView*>(&list))
        return table->horizontalHeader();
    auto* const tree = qobject_cast<QTreeView*>(&list);
    return tree ? tree->header() : nullptr;
}

QStringList columnTitles(const QHeaderView& header)
{
    QStringList titles;
    for (int column = 0; column < header.count(); ++column) {
        if (!header.isSectionHidden(column))
            titles << header.model()->headerData(column, Qt::Horizontal).toString();
    }
    return titles;
}

bool showsText(const QAbstractItemModel& model, const QString& text, const QModelIndex& parent = {})
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data().toString() == text || showsText(model, text, index))
            return true;
    }
    return false;
}

// Of every visible list of a page: the titles that are wider than their columns.
QStringList cutTitles(const QWidget& page)
{
    QStringList cut;
    for (QAbstractItemView* const list : page.findChildren<QAbstractItemView*>()) {
        const QHeaderView* const header = headerOf(*list);
        if (!header || !header->isVisible())
            continue;
        for (int column = 0; column < header->count(); ++column) {
            const QString title = header->model()->headerData(column, Qt::Horizontal).toString();
            const int needed = header->fontMetrics().horizontalAdvance(title) +
                               2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
            if (!header->isSectionHidden(column) && header->sectionSize(column) < needed)
                cut << title;
        }
    }
    return cut;
}

constexpr DocType pages[] = {DocType::ProductCatalog,     DocType::ContragentCatalog, DocType::StockCatalog,
                             DocType::MeasurementCatalog, DocType::ProductJournal,    DocType::BalanceSheet,
                             DocType::PeriodSellReport,   DocType::SellProduct,       DocType::BuyProduct};

} // namespace

class Translations : public testing::Test {
protected:
    void speak(const QString& language) { installTranslations(*qApp, language); }
    void TearDown() override { speak(u"en"_s); }
};

TEST_F(Translations, theChosenLanguageIsSpokenElseTheFirstKnownOneOfTheDesktop)
{
    EXPECT_EQ(spokenLanguage(u"ru"_s, {u"en-US"_s}), u"ru");
    EXPECT_EQ(spokenLanguage(u"en"_s, {u"ru-RU"_s}), u"en");
    EXPECT_EQ(spokenLanguage({}, {u"ru-RU"_s, u"en-US"_s}), u"ru");
    EXPECT_EQ(spokenLanguage({}, {u"en-GB"_s, u"ru"_s}), u"en");
    EXPECT_EQ(spokenLanguage({}, {u"de-AT"_s, u"ru-Cyrl-RU"_s}), u"ru");
    EXPECT_EQ(spokenLanguage({}, {u"C"_s}), u"en");
    EXPECT_EQ(spokenLanguage(u"xx"_s, {}), u"en");
}

TEST_F(Translations, anotherLanguageReplacesTheOneBefore)
{
    speak(u"ru"_s);
    const auto once = qApp->findChildren<QTranslator*>().size();
    speak(u"ru"_s);
    EXPECT_EQ(qApp->findChildren<QTranslator*>().size(), once);
    EXPECT_EQ(localized("Save"), u"Сохранить");
    speak(u"en"_s);
    EXPECT_EQ(localized("Save"), u"Save");
}

TEST_F(Translations, textsKeepTheirPlaceholdersAndLines)
{
    speak(u"ru"_s);
    EXPECT_EQ(localized("Cannot open %1: %2").arg(u"a"_s, u"b"_s), u"Не удалось открыть a: b");
    EXPECT_TRUE(localized("Can't confirm document.\n").endsWith(u'\n'));
}

TEST_F(Translations, theDialogsOfQtSpeakTheSameLanguage)
{
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!QTranslator().load(u"qtbase_ru"_s, folder))
        GTEST_SKIP() << "Qt's own translations are not installed in " << folder.toStdString();
    speak(u"ru"_s);
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Отмена");
}

TEST_F(Translations, numbersAndDatesStayThoseOfTheRegion)
{
    const QLocale region;
    speak(u"ru"_s);
    EXPECT_EQ(QLocale(), region);
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 2), u"1,234.50");
}

TEST_F(Translations, theMainMenuOfAnyProjectIsInTheLanguageOfTheProgram)
{
    speak(u"ru"_s);
    DesktopProgram program;
    program.openNewProject();
    bool products = false;
    bool sale = false;
    for (const auto* const list : program.window().findChildren<QAbstractItemView*>()) {
        if (!list->isVisible() || !list->model())
            continue;
        products = products || showsText(*list->model(), u"Товары"_s);
        sale = sale || showsText(*list->model(), u"Продажа"_s);
    }
    EXPECT_TRUE(products);
    EXPECT_TRUE(sale);
}

TEST_F(Translations, theMenuOfAProjectKeepsItsEnglishNamesInTheFile)
{
    speak(u"ru"_s);
    DesktopProgram program;
    program.openNewProject();
    const auto stored = program.program.appDelegate.connector.freeSQL<Menu>("WHERE id=?", {10});
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored.front()->name, u"Products");
}

TEST_F(Translations, aCatalogPageHasItsTitleAndItsColumnsInTheLanguage)
{
    speak(u"ru"_s);
    DesktopProgram program;
    program.openNewProject();
    program.workspace().topMenuAction(DocType::MeasurementCatalog);
    Page* const page = program.window().activePage();
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->view().name(), u"Справочник единиц измерения");
    const auto lists = page->findChildren<QAbstractItemView*>();
    ASSERT_FALSE(lists.isEmpty());
    const QHeaderView* const header = headerOf(*lists.first());
    ASSERT_NE(header, nullptr);
    EXPECT_TRUE(columnTitles(*header).contains(u"Наименование"))
        << columnTitles(*header).join(u'|').toStdString();
}

TEST_F(Translations, noColumnTitleIsCutOff)
{
    for (const QString& language : knownLanguages()) {
        speak(language);
        DesktopProgram program;
        program.openNewProject();
        program.window().resize(1440, 900);
        for (const DocType type : pages) {
            program.workspace().topMenuAction(type);
            QApplication::processEvents();
            EXPECT_EQ(cutTitles(*program.window().activePage()).join(u" | "_s).toStdString(), "")
                << language.toStdString();
        }
    }
}

} // namespace zelvor
