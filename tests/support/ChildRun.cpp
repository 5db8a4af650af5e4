#include "ChildRun.h"

#include <QProcess>

ChildRun ChildRun::of(const QString& program, const QStringList& arguments,
                      const QProcessEnvironment& env)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(program, arguments);
    ChildRun run;
    if (!p.waitForFinished(120000)) {
        p.kill();
        p.waitForFinished();
        return run;
    }
    run.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    run.out = p.readAllStandardOutput();
    run.err = p.readAllStandardError();
    return run;
}
