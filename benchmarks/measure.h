// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <functional>
#include <vector>

//! One line of the table: what ours takes, what the other takes, and the greatest ratio that is good enough.
struct Row
{
    QString name;
    QString unit;
    double ours = 0;
    double theirs = 0;
    double ratio = 0;
    double goal = 0;
};

class Table
{
public:
    explicit Table(const QString &filter);

    //! Whether a row of this name is asked for; only then measure it.
    bool wants(const QString &name) const;
    void add(const Row &row);
    void print() const;

private:
    QString m_filter;
    std::vector<Row> m_rows;
};

using Work = std::function<void()>;

/*!
    Median microseconds of two pieces of work, run in turn in one process, and the median of the ratios of
    neighbouring runs, two of each, which holds when the speed of the machine drifts and whichever goes first.
    What a piece of work must be followed by is not counted; such work is done once a round.
*/
Row timed(const QString &name, double goal, const Work &ours, const Work &theirs, int rounds = 40,
    const Work &after = {});

//! Bytes of heap in use.
double heapInUse();

void measureText(Table &table);
void measureColorizer(Table &table);
void measureKeyboard(Table &table);
void measureControls(Table &table);
void measureIndicators(Table &table);
void measureHome(Table &table);
void measureLargeText(Table &table);
void measureViews(Table &table);
