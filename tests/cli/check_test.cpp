#include "cli/cli_test.h"

namespace zelvor {

// A shop with a purchase on account, a sale, a payment, a spending and a payment to the employee.
class CheckCommand : public CliTest {
protected:
    void SetUp() override
    {
        createShop();
        applied(
            R"({"do":"document","type":"BuyProduct","date":"2024-01-03","contragent":1,"rows":[{"product":1,"amount":5,"price":7}],"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-04","contragent":1,"rows":[{"product":1,"amount":2}],"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-04","contragent":1,"rows":[{"product":1,"amount":1}],"confirm":true}
{"do":"document","type":"MoneyFromContragent","date":"2024-01-04","contragent":1,"sum":5,"confirm":true}
{"do":"document","type":"MoneyToEmployee","date":"2024-01-05","employee":1,"sum":5,"confirm":true}
{"do":"document","type":"SellProduct","date":"2024-01-06","contragent":1,"rows":[{"product":1,"amount":1}]}
)",
            {"--replay"});
    }
    QJsonArray findings() const
    {
        const CliRun result = run({"check", project});
        const QJsonDocument document = QJsonDocument::fromJson(result.out);
        EXPECT_TRUE(document.isArray()) << result.out.constData();
        EXPECT_EQ(result.exitCode, document.array().isEmpty() ? 0 : 1);
        return document.array();
    }
    // The first finding after the change, as "check table id".
    std::string findingAfter(const char* sql)
    {
        corrupt(sql);
        const QJsonArray list = findings();
        if (list.isEmpty())
            return "none";
        const QJsonObject first = list.first().toObject();
        EXPECT_FALSE(first["text"].toString().isEmpty());
        return (first["check"].toString() + ' ' + first["table"].toString() + ' ' +
                QString::number(first["id"].toInt()))
            .toStdString();
    }
};

TEST_F(CheckCommand, findsNothingInBooksOfItsOwn)
{
    EXPECT_TRUE(findings().isEmpty());
}

TEST_F(CheckCommand, findsLinksToNothing)
{
    EXPECT_EQ(findingAfter("UPDATE contragent SET manager_id=77"), "link contragent 1");
}

TEST_F(CheckCommand, findsRowsOfADocumentThatIsGone)
{
    EXPECT_EQ(findingAfter("UPDATE product_doc_row SET doc_id=77 WHERE id=5"), "link product_doc_row 5");
}

TEST_F(CheckCommand, findsGroupsThatHoldEachOther)
{
    EXPECT_EQ(findingAfter("UPDATE product_group SET parent_id=1 WHERE id=1"), "circle product_group 1");
}

TEST_F(CheckCommand, findsAProductWithTwoRowsOnOneWarehouse)
{
    EXPECT_EQ(
        findingAfter("INSERT INTO stock_row(stock_id,product_id,amount,amount_reserved) VALUES(1,1,0.0,0.0)"),
        "stock-row stock_row 2");
}

TEST_F(CheckCommand, findsAmountsThatAreNoNumbers)
{
    EXPECT_EQ(findingAfter("UPDATE stock_row SET amount_reserved='many'"), "number stock_row 1");
    EXPECT_EQ(findingAfter("UPDATE stock_row SET amount_reserved=NULL"), "number stock_row 1");
    EXPECT_EQ(findingAfter("UPDATE stock_row SET amount_reserved=9e999"), "number stock_row 1");
    EXPECT_EQ(findingAfter("UPDATE stock_row SET amount_reserved=0.0"), "none");
}

TEST_F(CheckCommand, findsNumbersOfDocumentsThatDoNotFit)
{
    EXPECT_EQ(findingAfter("UPDATE product_doc SET doc_number=9 WHERE is_confirmed=0"),
              "serial-number product_doc 5");
    corrupt("UPDATE product_doc SET doc_number=0 WHERE is_confirmed=0");
    EXPECT_EQ(findingAfter("UPDATE money_doc SET doc_number=0 WHERE id=2"), "serial-number money_doc 2");
    corrupt("UPDATE money_doc SET doc_number=1 WHERE id=2");
    EXPECT_EQ(findingAfter("UPDATE product_doc SET doc_number=1 WHERE id=4"), "serial-number product_doc 4");
    corrupt("UPDATE product_doc SET doc_number=2 WHERE id=4");
    EXPECT_EQ(findingAfter("UPDATE doc_number SET doc_number=1 WHERE doc_type_id=12"),
              "serial-number product_doc 0");
}

TEST_F(CheckCommand, findsRowsThatDoNotAddUp)
{
    EXPECT_EQ(findingAfter("UPDATE product_doc SET doc_sum=doc_sum+0.01 WHERE id=2"),
              "document-sum product_doc 2");
    corrupt("UPDATE product_doc SET doc_sum=35 WHERE id=2");
    EXPECT_EQ(findingAfter("UPDATE product_doc_row SET base_cost_sum=1.0 WHERE id=3"),
              "row-sum product_doc_row 3");
}

TEST_F(CheckCommand, findsStockThatIsNotItsDocuments)
{
    EXPECT_EQ(findingAfter("UPDATE stock_row SET amount=amount+1"), "stock product 1");
    EXPECT_EQ(findingAfter("DELETE FROM stock_row"), "stock product 1");
}

TEST_F(CheckCommand, findsBalancesThatAreNotTheirDocuments)
{
    EXPECT_EQ(findingAfter("UPDATE account SET balance=balance+0.01"), "balance account 1");
    corrupt("UPDATE account SET balance=1000.0");
    EXPECT_EQ(findingAfter("UPDATE contragent SET balance=balance-5"), "balance contragent 1");
    corrupt("UPDATE contragent SET balance=balance+5");
    EXPECT_EQ(findingAfter("UPDATE manager SET balance=1.0"), "balance manager 1");
}

TEST_F(CheckCommand, aBalanceChangedByHandCountsFromThere)
{
    applied(R"({"do":"put","record":"Contragent","id":1,"values":{"balance":500}}
{"do":"document","type":"MoneyFromContragent","date":"2024-01-07","contragent":1,"sum":5,"confirm":true}
)",
            {"--replay"});
    EXPECT_TRUE(findings().isEmpty());
    EXPECT_EQ(findingAfter("UPDATE contragent SET balance=500"), "balance contragent 1");
}

TEST_F(CheckCommand, findsASettingsRowTooMany)
{
    EXPECT_EQ(
        findingAfter("INSERT INTO params SELECT NULL,version,is_show_current_balance,report_period,"
                     "default_currency,last_currency_update,max_deferment,is_print_company_logo,path_to_logo,"
                     "is_use_vat,is_use_gst,vat_rate,gst_rate,vat_number,is_use_vat_no,company_name,"
                     "company_address,company_city,company_phone,company_mail,company_domain,"
                     "bank_account_name,bank_account_number,bank_name,bank_address,bank_iban,bank_swift,"
                     "is_print_bank_details,last_period_saved FROM params"),
        "settings params 0");
}

TEST_F(CheckCommand, neverCrashesOnADamagedFile)
{
    const QByteArray whole = read(project);
    for (int i = 0; i < 40; ++i) {
        QByteArray damaged = whole;
        const qsizetype place = (whole.size() / 40) * i + 17;
        damaged[place] = static_cast<char>(damaged[place] ^ 0x55);
        write("damaged.pdb", damaged);
        const CliRun result = run({"check", file("damaged.pdb")});
        EXPECT_GE(result.exitCode, 0);
        EXPECT_EQ(read(file("damaged.pdb")), damaged);
    }
}

} // namespace zelvor
