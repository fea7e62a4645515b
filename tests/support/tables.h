#pragma once

#include <QTest>

namespace MirrixTest {

/// Gives the data table of the running test its columns, named by literals, and returns what adds a row: its name, then
/// a value for each column.
template <typename... Values>
[[nodiscard]] auto columns(const char *const (&names)[sizeof...(Values)])
{
    const char *const *name = names;
    (QTest::addColumn<Values>(*name++), ...);
    return [](const char *row, const Values &...values) { (QTest::newRow(row) << ... << values); };
}

} // namespace MirrixTest
