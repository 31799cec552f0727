#include "print/export/excel_export.h"

#include "print/export/export_fixture.h"

#include <QtCore/QDir>
#include <QtCore/QStringDecoder>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

// A list of one column, one of them hidden.
class OneRow : public TableView {
public:
    OneRow() : TableView(u"One row"_s, blackColor) {}
    std::vector<ViewColumn> columns() const override
    {
        return {{u"a"_s, u"A & <B>"_s},
                {.identifier = u"b"_s, .title = u"hidden"_s, .hidden = true},
                {u"c"_s, u"C"_s, CellKind::Amount},
                {u"d"_s, u"D"_s, CellKind::Percent},
                {u"e"_s, u"E"_s, CellKind::Date},
                {u"f"_s, u"F"_s, CellKind::Integer}};
    }
    int numberOfRows() const override { return 1; }
    QVariant value(int, const QString& identifier) const override { return cells.value(identifier); }
    QMap<QString, QVariant> cells;
};

class ExportToFile : public Export {
protected:
    // Exports the list to what the user typed; the answer.
    bool exportTo(const QString& typed)
    {
        books.dialogs.savePaths = {typed};
        return exportToExcel(view, books.appDelegate);
    }
    OneRow view;
};

TEST_F(ExportToFile, markupIsNotEscaped)
{
    view.cells = {{u"a"_s, u"<i>fish & \"chips\"</i>\n=1+1"_s}};
    EXPECT_EQ(exported(view), u"<table><tr><td>A & <B></td><td>C</td><td>D</td><td>E</td><td>F</td></tr>"
                              "<tr><td><i>fish & \"chips\"</i>\n=1+1</td><td></td><td></td><td></td><td></td>"
                              "</tr></table>"_s);
}

TEST_F(ExportToFile, cellsAreWrittenByTheKindOfTheirColumn)
{
    view.cells = {{u"c"_s, 1234567.125}, {u"d"_s, 0.125}, {u"e"_s, 86'400LL}, {u"f"_s, 1234}};
    EXPECT_TRUE(exported(view).endsWith(u"<tr><td></td><td>1 234 567.12</td><td>12.50%</td>"
                                        "<td>2 Jan 1970</td><td>1234</td></tr></table>"_s))
        << qPrintable(exported(view));
    view.cells = {{u"c"_s, u""_s}, {u"d"_s, u"n/a"_s}, {u"e"_s, u"never"_s}};
    EXPECT_TRUE(exported(view).endsWith(u"<tr><td></td><td></td><td></td><td></td><td></td></tr></table>"_s));
}

TEST_F(ExportToFile, theFileIsUtf16WithAByteOrderMark)
{
    view.cells = {{u"a"_s, u"Käse \U0001F9C0 €"_s}};
    ASSERT_TRUE(exportTo(books.file(u"list"_s)));
    const QByteArray bytes = contents(books.file(u"list.xls"_s));
    EXPECT_TRUE(bytes.startsWith("\xFF\xFE<\0t\0"_ba)) << bytes.toHex().constData();
    QStringDecoder fromUtf16(QStringDecoder::Utf16);
    const QString read = fromUtf16(bytes);
    EXPECT_EQ(read, exported(view));
}

TEST_F(ExportToFile, thePanelAsksInTheProgramsOwnWords)
{
    ASSERT_TRUE(exportTo(books.file(u"list"_s)));
    ASSERT_EQ(books.dialogs.savePanels.size(), 1U);
    const SavePanel& panel = books.dialogs.savePanels.front();
    EXPECT_EQ(panel.title, u"Export table to .xls"_s);
    EXPECT_EQ(panel.nameLabel, u"Name"_s);
    EXPECT_EQ(panel.prompt, u"Export"_s);
    EXPECT_EQ(panel.extension, u"xls"_s);
    EXPECT_TRUE(books.dialogs.alerts.empty());
}

TEST_F(ExportToFile, aNameTypedWithItsExtensionGetsASecondOne)
{
    ASSERT_TRUE(exportTo(books.file(u"list.xls"_s)));
    EXPECT_TRUE(QFile::exists(books.file(u"list.xls.xls"_s)));
    EXPECT_FALSE(QFile::exists(books.file(u"list.xls"_s)));
    ASSERT_TRUE(exportTo(books.file(u"list.2023"_s)));
    EXPECT_TRUE(QFile::exists(books.file(u"list.2023.xls"_s)));
}

TEST_F(ExportToFile, aCancelledPanelWritesNothing)
{
    const QStringList before = QDir(books.file({})).entryList();
    EXPECT_FALSE(exportToExcel(view, books.appDelegate));
    EXPECT_EQ(books.dialogs.savePanels.size(), 1U);
    EXPECT_TRUE(books.dialogs.alerts.empty());
    EXPECT_EQ(QDir(books.file({})).entryList(), before);
}

TEST_F(ExportToFile, anOlderFileIsReplaced)
{
    ASSERT_TRUE(exportTo(books.file(u"list"_s)));
    view.cells = {{u"a"_s, u"anew"_s}};
    ASSERT_TRUE(exportTo(books.file(u"list"_s)));
    EXPECT_EQ(contents(books.file(u"list.xls"_s)), excelFile(exported(view)));
}

TEST_F(ExportToFile, aFailedWriteIsToldAndLeavesTheOlderFileAlone)
{
    EXPECT_FALSE(exportTo(books.file(u"no folder/list"_s)));
    ASSERT_EQ(books.dialogs.alerts.size(), 1U);
    EXPECT_EQ(books.dialogs.lastAlert(), u"The table was not exported!"_s);
    EXPECT_TRUE(books.dialogs.alerts[0].informativeText.startsWith(books.file(u"no folder/list.xls: "_s)))
        << qPrintable(books.dialogs.alerts[0].informativeText);
    EXPECT_EQ(books.dialogs.alerts[0].buttons, QStringList{u"Close"_s});

    ASSERT_TRUE(QDir(books.file({})).mkdir(u"taken.xls"_s));
    EXPECT_FALSE(exportTo(books.file(u"taken"_s)));
    EXPECT_EQ(books.dialogs.alerts.size(), 2U);
}

TEST_F(ExportToFile, aFullDiskIsToldAndLeavesTheOlderFileAlone)
{
    ASSERT_TRUE(exportTo(books.file(u"list"_s)));
    const QByteArray before = contents(books.file(u"list.xls"_s));
    rlimit unlimited{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &unlimited), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit little = unlimited;
    little.rlim_cur = 16;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &little), 0);
    const bool written = exportTo(books.file(u"list"_s));
    ::setrlimit(RLIMIT_FSIZE, &unlimited);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(written);
    EXPECT_EQ(books.dialogs.alerts.size(), 1U);
    EXPECT_EQ(contents(books.file(u"list.xls"_s)), before);
}

} // namespace
} // namespace zelvor
