#include "device/command_outcome.h"

#include "device/info_reply.h"

namespace {

struct Answer
{
    bool isError;
    qsizetype window;   ///< in which it became complete
    qsizetype last = 0; ///< the latest command that it can belong to
};

QList<Answer> answersIn(const QList<QByteArray> &replies)
{
    QList<Answer> answers;
    QByteArray bytes; // of all windows so far, because a window may end in the middle of an answer
    for (qsizetype window = 0; window < replies.size(); ++window) {
        bytes += replies[window];
        qsizetype count = 0;
        for (const QString &line : info_reply::lines(bytes)) {
            if (info_reply::isAcknowledge(line) && ++count > answers.size())
                answers.append({line.trimmed().compare(QLatin1String("ERROR"), Qt::CaseInsensitive) == 0, window});
        }
    }
    return answers;
}

} // namespace

CommandOutcome CommandOutcome::ofWrites(const QStringList &commands, const QList<QByteArray> &replies)
{
    QList<Answer> answers = answersIn(replies);
    // No answer comes before its command was sent, and no two belong to one command.
    qsizetype next = commands.size();
    for (auto answer = answers.rbegin(); answer != answers.rend(); ++answer)
        answer->last = next = qMin(answer->window, next - 1);
    // The first answer belongs to the first command or a later one, the second to the second, and so on. More answers
    // than that leaves room for are not all answers to these commands.
    const bool isPlain = answers.isEmpty() || answers.first().last >= 0;

    QList<bool> isRefused(commands.size(), false);
    CommandOutcome outcome;
    for (qsizetype i = 0; i < answers.size(); ++i) {
        if (!answers[i].isError)
            continue;
        const qsizetype first = isPlain ? i : 0;
        const qsizetype last = isPlain ? answers[i].last : qMin(answers[i].window, commands.size() - 1);
        outcome.isOneOf = outcome.isOneOf || first != last;
        for (qsizetype command = first; command <= last; ++command)
            isRefused[command] = true;
    }
    for (qsizetype command = 0; command < commands.size(); ++command) {
        if (isRefused[command])
            outcome.commands.append(commands[command]);
    }
    outcome.kind = outcome.commands.isEmpty() ? Kind::Nothing : Kind::Refused;
    return outcome;
}
