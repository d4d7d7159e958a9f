#include "benchmarks/Table.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <optional>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include "benchmarks/Floor.h"

namespace ks::bench
{

namespace
{

constexpr int Repetitions = 9;

/// Why a case could not run, empty when it did. The library's releases name this differently.
template <class TRun>
std::string ErrorOf(const TRun& Run)
{
    if constexpr (requires { Run.error_occurred; })
        return Run.error_occurred ? Run.error_message : std::string();
    else
        return Run.skipped != 0 ? Run.skip_message : std::string();
}

/// Keeps the medians; the table is printed when all is measured.
class TMedians : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& Runs) override
    {
        for (const Run& Each : Runs) {
            const std::string Name = Each.run_name.function_name;
            if (const std::string Error = ErrorOf(Each); !Error.empty())
                FErrors[Name] = Error;
            else if (Each.run_type == Run::RT_Iteration)
                FTimes[Name].push_back(Each.GetAdjustedRealTime());
        }
    }

    std::optional<double> Median(const std::string& Name) const
    {
        const auto Found = FTimes.find(Name);
        if (Found == FTimes.end())
            return std::nullopt;
        std::vector<double> Times = Found->second;
        std::nth_element(Times.begin(), Times.begin() + static_cast<std::ptrdiff_t>(Times.size() / 2),
                         Times.end());
        return Times[Times.size() / 2];
    }
    const std::map<std::string, std::string>& GetErrors() const { return FErrors; }

private:
    std::map<std::string, std::vector<double>> FTimes;
    std::map<std::string, std::string> FErrors;
};

std::string Processor()
{
    std::ifstream Info("/proc/cpuinfo");
    std::string Line;
    while (std::getline(Info, Line)) {
        if (Line.starts_with("model name"))
            return Line.substr(Line.find(':') + 2);
    }
    return "unknown processor";
}

void PrintHead()
{
    char Host[256] = "";
    gethostname(Host, sizeof Host - 1);
    std::printf("%s, %s, %ld processors\n\n", Host, Processor().c_str(), sysconf(_SC_NPROCESSORS_ONLN));
    std::printf("%-62s %14s %14s %9s %9s\n", "case", "median", "reach", "", "x floor");
}

const char* Verdict(double Value, double Reach)
{
    if (Reach <= 0)
        return "";
    return Value <= Reach ? "reached" : "MISSED";
}

void PrintLine(const std::string& Name, double Value, double Reach, const std::string& Unit, double Ratio)
{
    char Numbers[3][40] = {"", "", ""};
    std::snprintf(Numbers[0], sizeof Numbers[0], "%.2f %s", Value, Unit.c_str());
    if (Reach > 0)
        std::snprintf(Numbers[1], sizeof Numbers[1], "%.2f %s", Reach, Unit.c_str());
    if (Ratio > 0)
        std::snprintf(Numbers[2], sizeof Numbers[2], "%.1f", Ratio);
    std::printf("%-62s %14s %14s %9s %9s\n", Name.c_str(), Numbers[0], Numbers[1], Verdict(Value, Reach),
                Numbers[2]);
    std::fflush(stdout);
}

void PrintRow(const TRow& Row, const TMedians& Medians)
{
    const std::optional<double> Time = Medians.Median(Row.Name);
    if (!Time)
        return;
    double Reach = Row.Reach;
    if (!Row.ReachRow.empty())
        Reach = Medians.Median(Row.ReachRow).value_or(0) * Row.ReachFactor;
    const bool Paints = Row.Floor.Rectangles > 0 || Row.Floor.Texts > 0;
    PrintLine(Row.Name, *Time, Reach, "ms", Paints ? *Time / FloorMilliseconds(Row.Floor) : 0);
}

} // namespace

int RunTable(int Count, char** Arguments, const TCases& Cases)
{
    benchmark::Initialize(&Count, Arguments);
    if (benchmark::ReportUnrecognizedArguments(Count, Arguments))
        return 2;
    for (const TRow& Row : Cases.Rows) {
        benchmark::RegisterBenchmark(Row.Name.c_str(), [&Row](benchmark::State& State) { Row.Run(State); })
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(Repetitions)
            ->MinTime(0.05)
            ->UseRealTime();
    }
    TMedians Medians;
    benchmark::RunSpecifiedBenchmarks(&Medians);
    PrintHead();
    for (const TRow& Row : Cases.Rows)
        PrintRow(Row, Medians);
    for (const TFigure& Figure : Cases.Figures)
        PrintLine(Figure.Name, Figure.Measure(), Figure.Reach, Figure.Unit, 0);
    for (const auto& [Name, Message] : Medians.GetErrors())
        std::fprintf(stderr, "%s: %s\n", Name.c_str(), Message.c_str());
    return Medians.GetErrors().empty() ? 0 : 1;
}

} // namespace ks::bench
