// SPDX-License-Identifier: LGPL-2.1-or-later
// Does one step of a scenario, with a fault or without:
//
//     fault_scenarios SCENARIO FOLDER prepare | look
//     fault_scenarios SCENARIO FOLDER act [CALL AT fail|kill|vanish|unnamed]
//
// Prints what came of it: after "act" "fault" when it happened and "done", "refused" or "refused
// without a reason", after "look" what is left.
#include "FaultCalls.h"
#include "Scenarios.h"

#include <QApplication>

#include <cstdio>

namespace {

const char* Words(Left left)
{
    switch (left) {
    case Left::Nothing:
        return "nothing";
    case Left::Old:
        return "old";
    case Left::New:
        return "new";
    case Left::Broken:
        break;
    }
    return "broken";
}

const char* Words(const Outcome& outcome)
{
    if (outcome.isDone)
        return "done";
    return outcome.hasReason ? "refused" : "refused without a reason";
}

FaultCalls::How HowOf(const QString& word)
{
    if (word == QLatin1String("kill"))
        return FaultCalls::How::Kill;
    if (word == QLatin1String("vanish"))
        return FaultCalls::How::Vanish;
    return word == QLatin1String("unnamed") ? FaultCalls::How::Unnamed : FaultCalls::How::Fail;
}

void Act(const Scenario& scenario, const QString& folder, const QStringList& fault)
{
    const auto work = scenario.ready();
    if (fault.size() == 3)
        FaultCalls::Begin({QFile::encodeName(folder).toStdString(), fault[0].toStdString(),
                           fault[1].toInt(), HowOf(fault[2])});
    const Outcome outcome = work();
    std::printf("%s%s\n", FaultCalls::End() ? "fault, " : "", Words(outcome));
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 4 && arguments.size() != 7)
        return 2;
    const QString folder = QFileInfo(arguments[2]).canonicalFilePath();
    EngineFixture engine;
    for (const Scenario& scenario : AllScenarios(engine, folder)) {
        if (arguments[1] != QLatin1String(scenario.name))
            continue;
        if (arguments[3] == QLatin1String("prepare"))
            scenario.prepare();
        else if (arguments[3] == QLatin1String("act"))
            Act(scenario, folder, arguments.mid(4));
        else
            std::printf("%s\n", Words(scenario.look()));
        return 0;
    }
    return 2;
}
