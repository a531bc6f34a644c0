#include "TableReporter.h"

#include "Comparison.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{
/** A number in a column of the table; empty if there is none. */
std::string cell(double value, const char *format)
{
    char text[32] = "";
    if (value > 0)
        std::snprintf(text, sizeof text, format, value);
    return text;
}

/** Bytes, or milliseconds with the significant digits. */
std::string amount(double value, bool isBytes)
{
    if (isBytes)
        return cell(value, "%.0f B");
    return cell(value * 1e3, value < 1e-3 ? "%.4f ms" : "%.2f ms");
}
} // namespace

TableReporter::TableReporter(std::string jsonFile)
    : m_jsonFile(std::move(jsonFile))
{}

bool TableReporter::ReportContext(const Context &)
{
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration)
            continue;
        const std::string &name = run.run_name.function_name;
        const std::size_t slash = name.rfind('/');
        Row &row = m_operations[name.substr(0, slash)][std::stoi(run.run_name.args)];
        double &side = name.substr(slash + 1) == Measured::ours ? row.ours : row.floor;
        const double value = run.counters.at(Measured::value);
        side = side > 0 ? std::min(side, value) : value;
        row.isBytes = run.report_label == Measured::bytes;
    }
}

double TableReporter::growth(const Rows &rows, int count)
{
    const auto tenth = rows.find(count / 10);
    if (count % 10 != 0 || tenth == rows.end() || tenth->second.ours <= 0)
        return 0;
    return rows.at(count).ours / tenth->second.ours;
}

void TableReporter::Finalize()
{
    printTable();
    if (!m_jsonFile.empty())
        writeJson();
}

template <typename Visitor>
void TableReporter::visitRows(const Visitor &visit) const
{
    for (const std::string &operation : comparedOperations()) {
        const auto measured = m_operations.find(operation);
        if (measured == m_operations.end())
            continue;
        for (const auto &[count, row] : measured->second)
            visit(operation, count, row, growth(measured->second, count));
    }
}

void TableReporter::printTable() const
{
    std::printf("%-39s %7s %12s %12s %6s %7s\n", "operation", "N", "ours", "floor", "ratio",
                "growth");
    visitRows([](const std::string &operation, int count, const Row &row, double growth) {
        std::printf("%-39s %7d %12s %12s %6s %7s\n", operation.c_str(), count,
                    amount(row.ours, row.isBytes).c_str(), amount(row.floor, row.isBytes).c_str(),
                    cell(row.ratio(), "%.2f").c_str(), cell(growth, "%.1f").c_str());
    });
}

void TableReporter::writeJson() const
{
    QJsonArray array;
    visitRows([&](const std::string &operation, int count, const Row &row, double growth) {
        array.append(QJsonObject{{"operation", QString::fromStdString(operation)},
                                 {"n", count},
                                 {"unit", row.isBytes ? "bytes" : "seconds"},
                                 {"ours", row.ours},
                                 {"floor", row.floor},
                                 {"ratio", row.ratio()},
                                 {"growth", growth}});
    });
    QFile file(QString::fromStdString(m_jsonFile));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", m_jsonFile.c_str());
    file.write(QJsonDocument(array).toJson());
}
