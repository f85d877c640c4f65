// SPDX-License-Identifier: MIT
#include "measure.h"

#include <QtCore/QElapsedTimer>

#include <malloc.h>

#include <algorithm>
#include <cstdio>

namespace {

double microseconds(const Work &work, int times)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < times; ++i)
        work();
    return double(timer.nsecsElapsed()) / 1000 / times;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

//! How often work must be repeated for a run that the clock can measure well.
int repetitions(const Work &work)
{
    constexpr double longEnough = 2000;
    work();
    const double once = microseconds(work, 1);
    return std::clamp(int(longEnough / std::max(once, 0.1)), 1, 20000);
}

} // namespace

Table::Table(const QString &filter)
    : m_filter(filter)
{
}

bool Table::wants(const QString &name) const
{
    return name.contains(m_filter, Qt::CaseInsensitive);
}

void Table::add(const Row &row)
{
    m_rows.push_back(row);
    std::fprintf(stderr, "%s\n", qPrintable(row.name));
}

void Table::print() const
{
    std::printf("%-58s %12s %12s %8s %8s\n", "ours against another", "ours", "other", "ratio", "goal");
    for (const Row &row : m_rows) {
        const char *verdict = row.goal > 0 && row.ratio > row.goal ? "  missed" : "";
        std::printf("%-58s %9.2f %-2s %9.2f %-2s %8.4f %8.4g%s\n", qPrintable(row.name), row.ours,
            qPrintable(row.unit), row.theirs, qPrintable(row.unit), row.ratio, row.goal, verdict);
    }
}

Row timed(
    const QString &name, double goal, const Work &ours, const Work &theirs, int rounds, const Work &after)
{
    const int ourTimes = after ? 1 : repetitions(ours);
    const int theirTimes = after ? 1 : repetitions(theirs);
    std::vector<double> our;
    std::vector<double> their;
    std::vector<double> ratios;
    for (size_t i = 0; i < size_t(rounds); ++i) {
        // Each goes first every other time: what one leaves in the caches and the heap, the next one meets.
        double first = microseconds(i % 2 ? ours : theirs, i % 2 ? ourTimes : theirTimes);
        if (after)
            after();
        double second = microseconds(i % 2 ? theirs : ours, i % 2 ? theirTimes : ourTimes);
        if (after)
            after();
        if (i % 2 == 0)
            std::swap(first, second);
        our.push_back(first);
        their.push_back(second);
        if (i % 2 != 0)
            ratios.push_back((our[i - 1] + our[i]) / (their[i - 1] + their[i]));
    }
    return {name, QStringLiteral("us"), median(our), median(their), median(ratios), goal};
}

double heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}
