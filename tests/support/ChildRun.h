#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QStringList>

// One run of another program to its end: its exit code (-1 when it crashed
// or had to be killed after two minutes) and what it wrote.
struct ChildRun
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;

    static ChildRun of(const QString& program, const QStringList& arguments,
                       const QProcessEnvironment& env = QProcessEnvironment::systemEnvironment());
};
