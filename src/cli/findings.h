#pragma once

#include "cli/json_writer.h"
#include "cli/output.h"

namespace zelvor {

class Connector;

// What is wrong with a project, told one by one as a JSON list.
class Findings {
public:
    // `check` is the word of the examination, `id` the record's, 0 where it is about none.
    void add(const QString& check, const QString& table, qint64 id, const QString& text);
    // Ends the list; false when it could not be written.
    bool finish();
    bool isEmpty() const { return m_count == 0; }

private:
    JsonWriter m_json;
    qint64 m_count = 0;
    bool m_failed = false;
};

// SQLite's own examination, the tables, and the settings row. False when the rest cannot be looked at.
bool checkFile(Connector& connector, Findings& findings);
// Links to nothing, records that hold themselves, columns without a number.
void checkRecords(Connector& connector, Findings& findings);
// Numbers of documents, rows against sums, the stock against the documents that moved it.
void checkDocuments(Connector& connector, Findings& findings);
// The balances of accounts, counterparties and employees against the documents that changed them.
void checkBalances(Connector& connector, Findings& findings);

} // namespace zelvor
