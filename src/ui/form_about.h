#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class form_about;
}

/// The about box: name and version, what the program is, the licence of its libraries, and where its settings and logs
/// are.
class form_about : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_about)

public:
    explicit form_about(QWidget *parent = nullptr);
    ~form_about() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void fillTexts();

    std::unique_ptr<Ui::form_about> m_ui;
};
