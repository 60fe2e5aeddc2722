/// The rows of a data-driven test, with typed columns:
///     using CutsTable = Table<int, QString>; // outside the slots
///     void cuts_data() { const CutsTable row; row("one byte over", 129, "x"); }
///     void cuts() { const auto [size, text] = CutsTable::current(); ... }
#pragma once

#include "support/texts.h"

#include <QtTest>
#include <tuple>

/// What a row takes for a column: the same type, and for texts also UTF-8 literals.
template <typename Type>
struct TableCell
{
    using Parameter = const Type &;
};
struct TextCell : QString
{
    TextCell() = default;
    TextCell(const char *utf8)
        : QString(QString::fromUtf8(utf8))
    {}
    TextCell(const QString &text)
        : QString(text)
    {}
};
template <>
struct TableCell<QString>
{
    using Parameter = const TextCell &;
};

template <typename... Types>
class Table
{
public:
    Table() { addColumns(std::index_sequence_for<Types...>()); }
    void operator()(const char *rowName, typename TableCell<Types>::Parameter... values) const
    {
        QTestData &row = QTest::newRow(rowName);
        ((row << Types(values)), ...);
    }
    /// @return the values of the row that runs.
    static std::tuple<Types...> current() { return values(std::index_sequence_for<Types...>()); }

private:
    static constexpr const char *Names[] = {"1", "2", "3", "4", "5", "6", "7"};

    template <std::size_t... Columns>
    static void addColumns(std::index_sequence<Columns...>)
    {
        (QTest::addColumn<Types>(Names[Columns]), ...);
    }
    template <std::size_t... Columns>
    static std::tuple<Types...> values(std::index_sequence<Columns...>)
    {
        return {*static_cast<const Types *>(QTest::qData(Names[Columns], qMetaTypeId<Types>()))...};
    }
};
