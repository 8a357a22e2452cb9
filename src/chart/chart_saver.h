#pragma once

#include <QLatin1String>
#include <QObject>
#include <QQuickItem>
#include <QString>

#include <functional>

#include "chart/plot_view_state.h"

class QWindow;

/// Saves what a chart shows into files that the user names. What is saved is what was visible when it was asked for:
/// the picture goes on meanwhile. The result stands in `message`; the folder is remembered. Main thread only.
class ChartSaver : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartSaver)
    QML_ELEMENT
    QML_UNCREATABLE("comes with the window")
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool failed READ hasFailed NOTIFY messageChanged)

public:
    /// `window` is the one that dialogs belong to; `settingsGroup` keeps the folder.
    ChartSaver(QWindow *window, QLatin1String settingsGroup, QObject *parent = nullptr);

    /// What the last save led to, a sentence for the user in the language of the interface; empty before.
    const QString &message() const { return m_message; }
    bool hasFailed() const { return m_failed; }

    /// The visible samples of the view as a CSV file.
    Q_INVOKABLE void saveData(PlotViewState *view);
    /// A picture of `item` as a PNG file.
    Q_INVOKABLE void savePicture(PlotViewState *view, QQuickItem *item);
    Q_INVOKABLE void clearMessage() { tell({}, false); }

    /// Asks for a file under a suggested name and writes `content` into it.
    void save(const QString &title, const QString &fileName, const QString &filter, const QByteArray &content);
    /// A picture of `item` as a PNG file whose suggested name begins with `stem`.
    Q_INVOKABLE void savePictureAs(const QString &stem, QQuickItem *item);
    /// `stem` with the time and a suffix such as ".csv".
    static QString suggestedName(const QString &stem, QLatin1String suffix);

signals:
    void messageChanged();

protected:
    /// Makes a sentence, in the language that is in use when it is called.
    using Sentence = std::function<QString()>;
    /// Shows a sentence, and shows it anew in another language. An empty function clears.
    void tell(const Sentence &sentence, bool failed);
    QWindow *window() const { return m_window; }
    /// The folder used last, else that of documents.
    QString folder() const;

private:
    QWindow *m_window;
    QLatin1String m_settingsGroup;
    Sentence m_sentence;
    QString m_message;
    bool m_failed = false;
};
