#include "core/decimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

using namespace zelvor;

namespace {

std::vector<std::string> fieldsOf(const std::string& line)
{
    std::vector<std::string> fields(1);
    for (const char c : line) {
        if (c == '\t')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

Decimal decimalOf(const std::string& text)
{
    return Decimal::fromText(QString::fromStdString(text));
}

double doubleOf(const std::string& bits)
{
    return std::bit_cast<double>(std::uint64_t(std::stoull(bits, nullptr, 16)));
}

Decimal computed(const std::string& operation, RoundingHandler handler, const std::string& a,
                 const std::string& b)
{
    if (operation == "double")
        return Decimal::fromDouble(doubleOf(a), handler);
    if (operation == "exact-double")
        return Decimal::fromDouble(doubleOf(a));
    if (operation == "round")
        return decimalOf(a).rounded(handler);
    if (operation == "plus")
        return decimalOf(a).plus(decimalOf(b), handler);
    if (operation == "exact-plus")
        return decimalOf(a).plus(decimalOf(b));
    if (operation == "minus")
        return decimalOf(a).minus(decimalOf(b), handler);
    if (operation == "times")
        return decimalOf(a).times(decimalOf(b), handler);
    if (operation == "divide")
        return decimalOf(a).dividedBy(decimalOf(b), handler);
    ADD_FAILURE() << "unknown operation " << operation;
    return Decimal::nan();
}

// Whether the decimal gives the answer of the line.
bool agrees(const std::vector<std::string>& fields)
{
    const std::string& answer = fields[4];
    if (fields[0] == "to-double") {
        const double value = decimalOf(fields[2]).toDouble();
        return answer == "NaN" ? std::isnan(value) : value == doubleOf(answer);
    }
    const Decimal result = computed(fields[0], {std::stoi(fields[1])}, fields[2], fields[3]);
    if (answer == "NaN")
        return result.isNaN();
    // By text as well as by value, so that neither can hide a fault of the other.
    return result == decimalOf(answer) && result.toText().toStdString() == answer;
}

} // namespace

TEST(Decimal, agreesWithAnIndependentDecimalInAHundredThousandOperations)
{
#ifndef ZELVOR_DECIMAL_VECTORS
    GTEST_SKIP() << "python3 was not found when the build was configured, so there are no answers to compare";
#else
    std::ifstream vectors(ZELVOR_DECIMAL_VECTORS);
    ASSERT_TRUE(vectors.is_open()) << ZELVOR_DECIMAL_VECTORS;
    int count = 0;
    int failures = 0;
    for (std::string line; std::getline(vectors, line); ++count) {
        const std::vector<std::string> fields = fieldsOf(line);
        ASSERT_EQ(fields.size(), 5U) << line;
        if (agrees(fields))
            continue;
        ADD_FAILURE() << "line " << count + 1 << ": " << line;
        if (++failures == 20)
            break;
    }
    EXPECT_EQ(count, 100000);
#endif
}
