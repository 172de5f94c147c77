#include "CsvTable.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>

CsvTable::CsvTable(std::vector<std::string> header) : m_header(std::move(header)) {}

void CsvTable::AddRow(const std::vector<double>& values)
{
    for (std::size_t c = 0; c < ColumnCount(); ++c)
        m_values.push_back(c < values.size() ? static_cast<float>(values[c]) : 0.0f);
}

std::size_t CsvTable::RowCount() const
{
    return ColumnCount() == 0 ? 0 : m_values.size() / ColumnCount();
}

std::string CsvTable::Text() const
{
    std::string text;
    for (std::size_t c = 0; c < ColumnCount(); ++c)
        text += (c ? "," : "") + m_header[c];
    text += '\n';
    char number[32];
    for (std::size_t r = 0; r < RowCount(); ++r) {
        for (std::size_t c = 0; c < ColumnCount(); ++c) {
            // Shortest text that gives the float back exactly; to_chars ignores the
            // user's locale, so the decimal point stays a '.'.
            const auto result = std::to_chars(number, number + sizeof number, At(r, c));
            if (c)
                text += ',';
            text.append(number, result.ptr);
        }
        text += '\n';
    }
    return text;
}

bool CsvTable::Write(const std::string& path, std::string& error) const
{
    const std::string text = Text();
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) {
        error = std::strerror(errno);
        return false;
    }
    const bool written = std::fwrite(text.data(), 1, text.size(), file) == text.size();
    const int savedErrno = errno;
    const bool closed = std::fclose(file) == 0;
    if (!written || !closed) {
        error = std::strerror(written ? errno : savedErrno);
        return false;
    }
    return true;
}
