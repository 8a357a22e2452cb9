// kv_bare_window: a toolkit window with a few texts and no program around it. The baseline of starts: what loading the
// toolkit, connecting to the display and finding the fonts costs any program.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    constexpr int kLines = 20;
    QMainWindow window;
    auto *page = new QWidget(&window);
    auto *layout = new QVBoxLayout(page);
    for (int i = 0; i < kLines; ++i)
        layout->addWidget(new QLabel(QStringLiteral("Line %1").arg(i), page));
    window.setCentralWidget(page);
    window.resize(1280, 700);
    window.show();
    return QApplication::exec();
}
