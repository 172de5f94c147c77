#pragma once

#include <cstddef>
#include <string>
#include <vector>

// A table of numbers with named columns, written as comma-separated values that a
// spreadsheet opens: a header row, then one row per record, '.' as the decimal
// point whatever the user's locale. Values are kept as 32-bit floats, the width
// the experiments compute in, so that long runs stay small.
class CsvTable
{
public:
    // An empty table with these column names.
    explicit CsvTable(std::vector<std::string> header = {});

    // Appends one row; missing values are written as 0, extra ones are dropped.
    void AddRow(const std::vector<double>& values);

    // Forgets every row; the header stays.
    void Clear() { m_values.clear(); }

    const std::vector<std::string>& Header() const { return m_header; }
    std::size_t RowCount() const;
    std::size_t ColumnCount() const { return m_header.size(); }
    // The value in a row and column, both counted from 0.
    float At(std::size_t row, std::size_t column) const { return m_values[row * ColumnCount() + column]; }

    // The whole table as text, lines ended by "\n".
    std::string Text() const;

    // Writes the table to a file, replacing it. Touches nothing else. False, with
    // the reason in error, when the file cannot be written completely.
    bool Write(const std::string& path, std::string& error) const;

private:
    std::vector<std::string> m_header;
    std::vector<float> m_values;
};
