#include <QApplication>

#include "benchmarks/Table.h"
#ifdef KS_BENCH_CONTROLS
#include "vcl/platform/qt/QtPlatform.h"
#endif

int main(int Count, char** Arguments)
{
    QApplication Application(Count, Arguments);
    ks::bench::TCases Cases;
#ifdef KS_BENCH_CONTROLS
    vcl::qt::UseQt(Count, Arguments);
    ks::bench::AddTimeViewCases(Cases);
    ks::bench::AddTreeViewCases(Cases);
#endif
    ks::bench::AddCalendarCases(Cases);
    return ks::bench::RunTable(Count, Arguments, Cases);
}
