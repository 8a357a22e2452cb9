#pragma once

#include <QPointer>
#include <QString>

#include <functional>

class QMessageBox;
class QWidget;

/// Asks the user while everything else goes on: nothing is blocked, and no nested event loop runs. One question at a
/// time; a new one replaces the last. Main thread only.
class QuestionBox
{
public:
    QuestionBox() = default;
    ~QuestionBox() { withdraw(); }
    Q_DISABLE_COPY_MOVE(QuestionBox)

    /// Shows `question` over `parent`, with a button that runs `then`, and a default button that changes nothing.
    /// Whatever `then` uses must live as long as this object.
    void ask(QWidget *parent, const QString &question, const QString &yes, const QString &no,
             const std::function<void()> &then);
    /// Withdraws a question that no longer makes sense.
    void withdraw();

private:
    QPointer<QMessageBox> m_box;
};
