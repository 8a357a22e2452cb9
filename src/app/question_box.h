#pragma once

#include <QPointer>
#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

/// Asks the user beside everything else that goes on: nothing is blocked, and no nested event loop runs. One question
/// at a time; a new one takes the place of the last. Main thread only.
class QuestionBox
{
public:
    QuestionBox() = default;
    ~QuestionBox() { withdraw(); }
    Q_DISABLE_COPY_MOVE(QuestionBox)

    /// Shows `question` above `parent`, with a button that runs `then`, and the default one that changes nothing.
    /// Whatever `then` uses has to live as long as this object.
    void ask(QWidget *parent, const QString &question, const QString &yes, const QString &no,
             const std::function<void()> &then);
    /// Takes a question back that no longer makes sense.
    void withdraw();

private:
    QPointer<QMessageBox> m_box;
};
