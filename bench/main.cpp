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
        std::printf("\n%-36s %12s %12s %7s\n", "medians", "us (ms)", "peer (ms)", "ratio");
        for (const auto &[what, pair] : m_pairs)
            std::printf("%-36s %12.1f %12.1f %7.2f\n", what.c_str(), pair.us, pair.peer,
                        pair.us / pair.peer);
    }

private:
    struct Pair
    {
        double us = 0;
        double peer = 0;
    };

    void add(const std::string &name, double milliseconds)
    {
        const size_t slash = name.find('/');
        Pair &pair = m_pairs[name.substr(0, slash)];
        (name.compare(slash + 1, 5, "peer:") == 0 ? pair.peer : pair.us) = milliseconds;
    }

    std::map<std::string, Pair> m_pairs;
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
