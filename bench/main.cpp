// Each benchmark is named "what/us" or "what/peer: whom"; the table at the end sets them side by
// side.

#include <QCoreApplication>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {

class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                add(run.run_name.function_name, run.GetAdjustedRealTime());
        }
    }

    void printRatios() const
    {
        std::printf("\n%-40s %-28s %10s %10s %6s\n", "medians", "beside", "us (ms)", "peer (ms)",
                    "ratio");
        for (const auto &[what, row] : m_rows) {
            for (const auto &[name, milliseconds] : row.peers)
                std::printf("%-40s %-28s %10.1f %10.1f %6.2f\n", what.c_str(), name.c_str(), row.us,
                            milliseconds, row.us / milliseconds);
        }
    }

private:
    struct Row
    {
        double us = 0;
        std::map<std::string, double> peers;
    };

    void add(const std::string &name, double milliseconds)
    {
        const size_t slash = name.find('/');
        Row &row = m_rows[name.substr(0, slash)];
        const std::string who = name.substr(slash + 1);
        if (who.starts_with("peer: "))
            row.peers[who.substr(6)] = milliseconds;
        else
            row.us = milliseconds;
    }

    std::map<std::string, Row> m_rows;
};

} // namespace

int main(int argc, char **argv)
{
    // What is measured is not the disk.
    if (QFileInfo(QStringLiteral("/dev/shm")).isWritable())
        qputenv("TMPDIR", "/dev/shm");
    QCoreApplication application(argc, argv);
    // A single run says little on a busy machine. Random interleaving sets us and our peers side by
    // side.
    std::vector<std::string> defaults{argv[0], "--benchmark_repetitions=7",
                                      "--benchmark_enable_random_interleaving=true",
                                      "--benchmark_report_aggregates_only=true"};
    defaults.insert(defaults.end(), argv + 1, argv + argc);
    std::vector<char *> arguments;
    for (std::string &argument : defaults)
        arguments.push_back(argument.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printRatios();
    return 0;
}
