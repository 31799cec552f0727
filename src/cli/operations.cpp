#include "cli/operations.h"

#include "catalogs/currency_rates.h"
#include "cli/document_operation.h"
#include "cli/month_closing.h"
#include "cli/operation_reader.h"
#include "core/currency_struct.h"

#include <QtCore/QMap>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// The raw value of a currency named by its raw value or its code; 0 for anything else.
qint64 currencyNamed(const QString& text)
{
    if (const auto currency = currencyFromShort(text))
        return rawValue(*currency);
    bool isNumber = false;
    const qint64 raw = text.toLongLong(&isNumber);
    return isNumber && currencyFromInt(raw) ? raw : 0;
}

} // namespace

Operations::Operations(Program& program)
    : m_program(program), m_appDelegate(program.appDelegate), m_catalogs(program.appDelegate)
{}

Answer Operations::run(const QJsonObject& operation)
{
    using Handler = Answer (Operations::*)(OperationReader&);
    static const QMap<QString, Handler> handlers{
        {u"put"_s, &Operations::put},
        {u"document"_s, &Operations::document},
        {u"confirm"_s, &Operations::confirm},
        {u"delete"_s, &Operations::remove},
        {u"close-period"_s, &Operations::closePeriod},
        {u"update-rates"_s, &Operations::updateRates},
    };
    const QString name = operation.value("do"_L1).toString();
    const Handler handler = handlers.value(name);
    if (!handler)
        return Answer::invalid(u"'do' must name an operation: "_s +
                               QStringList(handlers.keys()).join(u", "_s));
    OperationReader reader(operation, name);
    reader.text(u"do"_s);
    return (this->*handler)(reader);
}

Answer Operations::put(OperationReader& reader)
{
    const QString name = reader.text(u"record"_s);
    const CatalogKind* kind = catalogKind(name);
    if (!kind)
        return Answer::invalid(u"put: no catalog has records of the name '%1'"_s.arg(name));
    qint64 id = 0;
    const bool byCode = name == u"Currency" && reader.value(u"id"_s).isString();
    if (byCode)
        id = currencyNamed(reader.text(u"id"_s));
    else
        id = reader.integer(u"id"_s, 0);
    if (reader.has(u"id"_s) && id <= 0)
        reader.fail(u"'id' must name a record"_s);
    if (!reader.has(u"values"_s))
        reader.fail(u"'values' is missing"_s);
    const QJsonObject values = reader.object(u"values"_s);
    QString error = reader.error();
    if (!error.isEmpty())
        return Answer::invalid(error);
    const std::optional<ColumnValues> columns = columnValuesFromJson(kind->table(), values, &error);
    return columns ? m_catalogs.write(*kind, id, *columns) : Answer::invalid(error);
}

Answer Operations::document(OperationReader& reader)
{
    return newDocument(m_program, reader);
}

Answer Operations::confirm(OperationReader& reader)
{
    return confirmStored(m_program, reader);
}

Answer Operations::remove(OperationReader& reader)
{
    return deleteStored(m_program, reader);
}

Answer Operations::closePeriod(OperationReader& reader)
{
    const QString error = reader.error();
    if (!error.isEmpty())
        return Answer::invalid(error);
    return closeLastMonth(m_appDelegate);
}

Answer Operations::updateRates(OperationReader& reader)
{
    if (!reader.has(u"rates"_s))
        reader.fail(u"'rates' is missing"_s);
    const QJsonObject given = reader.object(u"rates"_s);
    OperationReader rates(given, u"rates"_s);
    QMap<qint64, double> byCode;
    for (const QString& key : given.keys()) {
        const qint64 code = currencyNamed(key);
        const Decimal rate = rates.number(key, Decimal());
        if (code == 0)
            rates.fail(u"there is no currency '"_s + key + u'\'');
        else if (byCode.contains(code))
            rates.fail(u"the currency '"_s + key + u"' is given twice"_s);
        byCode.insert(code, rate.toDouble());
    }
    for (const QString& error : {reader.error(), rates.error()}) {
        if (!error.isEmpty())
            return Answer::invalid(error);
    }
    return applyRates(m_appDelegate, byCode) ? Answer::done()
                                             : Answer::refused(u"The rates could not be stored."_s);
}

} // namespace zelvor
