#pragma once

#include <QLatin1String>
#include <QObject>
#include <QQuickItem>
#include <QString>
#include <QVariantList>

#include <functional>

#include "chart/plot_view_state.h"

class QFileDialog;
class QWindow;

/// Saves what a chart shows into files that the user names. It saves what was visible at the time of the request: the
/// chart keeps running in the meantime. The result is in `message`; the folder is remembered. Main thread only.
class ChartSaver : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ChartSaver)
    QML_ELEMENT
    QML_UNCREATABLE("comes with the window")
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)
    Q_PROPERTY(bool failed READ hasFailed NOTIFY messageChanged)
    Q_PROPERTY(bool allSamples MEMBER m_allSamples NOTIFY optionsChanged)
    Q_PROPERTY(int pictureScale READ pictureScale WRITE setPictureScale NOTIFY optionsChanged)
    Q_PROPERTY(bool svg MEMBER m_svg NOTIFY optionsChanged)

public:
    /// `window` is the parent of dialogs; `settingsGroup` stores the folder.
    ChartSaver(QWindow *window, QLatin1String settingsGroup, QObject *parent = nullptr);

    /// The result of the last save, a sentence for the user in the language of the interface; empty before the first.
    const QString &message() const { return m_message; }
    bool hasFailed() const { return m_failed; }

    /// How it is saved: `allSamples` instead of the visible ones, pictures as `svg` or as PNG with `pictureScale`
    /// pixels (1 to 4; 0: as on the screen) per device-independent pixel.
    int pictureScale() const { return m_pictureScale; }
    void setPictureScale(int scale);

    /// The samples of the view as a CSV file.
    Q_INVOKABLE void saveData(PlotViewState *view);
    /// A picture of `item`, which shows the view.
    Q_INVOKABLE void savePicture(PlotViewState *view, QQuickItem *item);
    /// The same for several charts at once, one file each in a folder that the user is asked for. `charts` are the
    /// items that show them, each with its state in "viewState".
    Q_INVOKABLE void saveAllData(const QVariantList &charts);
    Q_INVOKABLE void saveAllPictures(const QVariantList &charts);
    Q_INVOKABLE void clearMessage() { tell({}, false); }

    /// Asks for a file under a suggested name and writes `content` into it.
    void save(const QString &title, const QString &fileName, const QString &filter, const QByteArray &content);
    /// `stem` with the time and a suffix such as ".csv".
    static QString suggestedName(const QString &stem, QLatin1String suffix);

signals:
    void messageChanged();
    void optionsChanged();

protected:
    /// Makes a sentence, in the language that is in use when it is called.
    using Sentence = std::function<QString()>;
    /// Shows a sentence, and shows it again when the language changes. An empty function clears it.
    void tell(const Sentence &sentence, bool failed);
    QWindow *window() const { return m_window; }
    /// The folder used last, else the documents folder.
    QString folder() const;

private:
    /// A file that is still to be written.
    struct File
    {
        QString name;
        QByteArray content;
    };
    /// What is done with a picture once it has been taken.
    using Taken = std::function<void(const File &)>;

    void takePicture(PlotViewState *view, QQuickItem *item, const Taken &taken);
    void saveInFolder(const QString &title, const QList<File> &files);
    void openDialog(QFileDialog *dialog);
    void rememberFolder(const QString &path);

    bool m_allSamples = false;
    bool m_svg = false;
    int m_pictureScale = 0;
    QWindow *m_window;
    QLatin1String m_settingsGroup;
    Sentence m_sentence;
    QString m_message;
    bool m_failed = false;
};
