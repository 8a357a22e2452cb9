#include "app/question_box.h"

#include <QMessageBox>
#include <QPushButton>

void QuestionBox::withdraw()
{
    if (m_box == nullptr)
        return;
    m_box->hide();
    m_box->deleteLater(); // it may be withdrawn by its own answer
    m_box.clear();
}

void QuestionBox::ask(QWidget *parent, const QString &question, const QString &yes, const QString &no,
                      const std::function<void()> &then)
{
    withdraw();
    m_box = new QMessageBox(QMessageBox::NoIcon, parent->windowTitle(), question, QMessageBox::NoButton, parent);
    m_box->setObjectName(QStringLiteral("BOX_question"));
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setTextFormat(Qt::PlainText);
    m_box->setModal(false);
    const QPushButton *agree = m_box->addButton(yes, QMessageBox::AcceptRole);
    QPushButton *leave = m_box->addButton(no, QMessageBox::RejectRole);
    m_box->setDefaultButton(leave);
    m_box->setEscapeButton(leave);
    QObject::connect(agree, &QPushButton::clicked, m_box, then);
    m_box->show();
}
