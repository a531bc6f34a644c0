#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/**
 * Prints a table with both sides of each comparison in one row, and writes it as JSON to a file if
 * one is given. Of several runs the minimum counts, since noise only adds time.
 */
class TableReporter : public benchmark::BenchmarkReporter
{
public:
    explicit TableReporter(std::string jsonFile);

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    struct Row
    {
        double ours = 0;
        double floor = 0;
        bool isBytes = false;
        double ratio() const { return floor > 0 ? ours / floor : 0; }
    };
    /** The rows of one operation, by the number of items. */
    using Rows = std::map<int, Row>;

    /** The ratio of `ours` to that with a tenth of the items; 0 if that was not measured. */
    static double growth(const Rows &rows, int count);
    /** Calls `visit` with every row, in the order of the comparisons. */
    template <typename Visitor>
    void visitRows(const Visitor &visit) const;
    void printTable() const;
    void writeJson() const;

    std::string m_jsonFile;
    std::map<std::string, Rows> m_operations;
};
