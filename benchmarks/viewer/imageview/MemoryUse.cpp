// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "MemoryUse.h"

#include <unistd.h>

#include <QByteArray>
#include <QFile>

double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0.0;
    }
    const double pages = file.readAll().split(' ').value(1).toDouble();
    return pages * double(sysconf(_SC_PAGESIZE)) / 1048576.0;
}

double risePerMinute(const QVector<double> &values)
{
    const int count = values.size();
    if (count < 2) {
        return 0.0;
    }
    double meanValue = 0.0;
    for (const double value : values) {
        meanValue += value / count;
    }
    const double meanTime = (count - 1) / 2.0;
    double covariance = 0.0;
    double variance = 0.0;
    for (int second = 0; second < count; ++second) {
        covariance += (second - meanTime) * (values.at(second) - meanValue);
        variance += (second - meanTime) * (second - meanTime);
    }
    return covariance / variance * 60.0;
}
