#include <QGuiApplication>

#include "benchmarks/Table.h"

int main(int Count, char** Arguments)
{
    QGuiApplication Application(Count, Arguments);
    ks::bench::TCases Cases;
    ks::bench::AddCalendarCases(Cases);
    return ks::bench::RunTable(Count, Arguments, Cases);
}
