// In zelvor-cli-pages: draws on pages.

#include "cli/command.h"
#include "cli/delivery.h"
#include "cli/output.h"
#include "cli/pages.h"
#include "cli/program.h"
#include "documents/product_document.h"
#include "print/print_forms.h"
#include "print/print_invoice.h"
#include "print/print_job.h"

#include <QtCore/QBuffer>
#include <QtGui/QGuiApplication>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// What drawing needs of Qt, without a display, whatever the surroundings say of one.
class Drawing {
public:
    Drawing()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QGuiApplication::setDesktopSettingsAware(false);
        const QtMessageHandler handler = qInstallMessageHandler(tellFaults);
        m_application.emplace(m_count, m_words);
        qInstallMessageHandler(handler);
    }

private:
    // On its way Qt looks for the folder of a session and warns when there is none, as in every nightly
    // script.
    static void tellFaults(QtMsgType type, const QMessageLogContext&, const QString& text)
    {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            writeError(text);
    }

    char m_name[11] = "zelvor-cli";
    char* m_words[2] = {m_name, nullptr};
    int m_count = 1;
    std::optional<QGuiApplication> m_application;
};

int refused(const QString& sentence)
{
    writeError(sentence);
    return exitRefused;
}

int deliverPdf(PrintView& form, const std::optional<QString>& path)
{
    if (!form.warning.isEmpty())
        writeError(form.warning);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!writePdf(form, buffer))
        return refused(u"the pages cannot be drawn"_s);
    return deliver(path, [&](const Sink& sink) { return sink(buffer.data()); });
}

} // namespace

int printReportForm(const Report& report, const Arguments& arguments)
{
    const Drawing drawing;
    Program program;
    if (!program.open(arguments.positional()[1], Access::ReadOnly))
        return exitBadUsage;
    return report.run(program.appDelegate, arguments, [&](const ReportTable& table) {
        const std::unique_ptr<PrintView> form = makePrintForm(table.view, program.appDelegate);
        if (!program.hasReadAll())
            return static_cast<int>(exitBadUsage);
        if (form)
            return deliverPdf(*form, arguments.value(u"-o"_s));
        const QString alert = program.dialogs.takeText();
        return refused(alert.isEmpty() ? u"report: this one has no print form"_s : alert);
    });
}

int printInvoice(const QString& project, qint64 id, const QString& path)
{
    const Drawing drawing;
    Program program;
    if (!program.open(project, Access::ReadOnly))
        return exitBadUsage;
    const std::shared_ptr<ProductDocument> document =
        program.appDelegate.connector.select<ProductDocument>(id);
    const std::unique_ptr<PrintInvoice> form =
        document ? makeInvoice(program.appDelegate, document) : nullptr;
    if (!program.hasReadAll())
        return exitBadUsage;
    if (form)
        return deliverPdf(*form, path);
    const QString whose = u"product document "_s + QString::number(id);
    return refused(document ? u"invoice: "_s + whose + u" is not a sale"_s
                            : u"invoice: there is no "_s + whose);
}

} // namespace zelvor
