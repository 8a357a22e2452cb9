#include "app/initial_language_picker.h"

#include <QDebug>
#include <QDialog>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWidget>
#include <QScreen>
#include <QVBoxLayout>

#include "app/palette.h"
#include "app/theme.h"

namespace {

constexpr double kShareOfScreen = 0.92; // leaves room for the window's frame

/// A size that the view requests, such as "preferredDialogWidth" and "preferredDialogHeight", inside the screen.
QSize wantedSize(const QQuickItem &view, const char *which, const QSize &screen)
{
    const QByteArray name(which);
    return QSize(view.property(name + "DialogWidth").toInt(), view.property(name + "DialogHeight").toInt())
        .boundedTo(screen);
}

/// The colours for the view. It stands alone, without the module that provides `Theme`.
QVariantMap pickerColors(const Palette &palette)
{
    return {{QStringLiteral("background"), palette.pickerBackground}, {QStringLiteral("surface"), palette.surface},
            {QStringLiteral("surfaceAlt"), palette.surfaceAlt},       {QStringLiteral("text"), palette.text},
            {QStringLiteral("textSecondary"), palette.textSecondary}, {QStringLiteral("accent"), palette.accent},
            {QStringLiteral("accentPressed"), palette.accentPressed}, {QStringLiteral("onAccent"), palette.onAccent},
            {QStringLiteral("accentText"), palette.accentText},       {QStringLiteral("border"), palette.border},
            {QStringLiteral("borderStrong"), palette.borderStrong},   {QStringLiteral("edge"), palette.pickerBorder},
            {QStringLiteral("hover"), palette.pickerHover},           {QStringLiteral("mark"), palette.pickerMark}};
}

} // namespace

std::optional<int> pickInitialLanguage(const QVariantList &options, int preferredIndex)
{
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("dialog_language"));
    dialog.setWindowTitle(QStringLiteral("Choose Language"));
    auto *view = new QQuickWidget(&dialog);
    view->setResizeMode(QQuickWidget::SizeRootObjectToView);
    view->setClearColor(theme::colors().pickerBackground);
    const QUrl url(QStringLiteral("qrc:/qml/InitialLanguagePicker.qml"));
    auto *component = new QQmlComponent(view->engine(), url, view);
    QObject *object = component->createWithInitialProperties({{QStringLiteral("colors"), pickerColors(theme::colors())},
                                                              {QStringLiteral("languageOptions"), options},
                                                              {QStringLiteral("preferredIndex"), preferredIndex},
                                                              {QStringLiteral("selectedIndex"), preferredIndex}});
    view->setContent(url, component, object); // owns the object from here on
    const QQuickItem *root = view->rootObject();
    if (root == nullptr) {
        qWarning() << "InitialLanguagePicker.qml errors:" << component->errors();
        return std::nullopt;
    }
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view);

    const QSize screen = dialog.screen()->availableSize() * kShareOfScreen;
    dialog.setMinimumSize(wantedSize(*root, "minimum", screen));
    dialog.setMaximumSize(wantedSize(*root, "maximum", screen));
    dialog.resize(wantedSize(*root, "preferred", screen));
    QObject::connect(root, SIGNAL(confirmRequested()), &dialog, SLOT(accept()));
    QObject::connect(root, SIGNAL(cancelRequested()), &dialog, SLOT(reject()));
    view->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return root->property("selectedIndex").toInt();
}
