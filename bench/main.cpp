// Each benchmark is named "what/us" or "what/peer: whom"; scripts/bench/table.py sets them side by
// side.

#include <QCoreApplication>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

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
    arguments.reserve(defaults.size());
    for (std::string &argument : defaults)
        arguments.push_back(argument.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
