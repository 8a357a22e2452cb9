#include "app/sentences.h"

QString joinSentences(const QStringList &sentences)
{
    constexpr QChar kFullWidthStop(0x3002);
    QString text;
    for (const QString &sentence : sentences) {
        if (!text.isEmpty() && !sentence.isEmpty() && !text.endsWith(kFullWidthStop))
            text += u' ';
        text += sentence;
    }
    return text;
}
