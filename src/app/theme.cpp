#include "app/theme.h"

#include <QApplication>
#include <QStyleFactory>

#include <utility>

#include "app/application_fonts.h"
#include "app/palette.h"

namespace {

const Palette *&current()
{
    static const Palette *colors = &palette::kLight;
    return colors;
}

} // namespace

const Palette &theme::colors()
{
    return *current();
}

void theme::setDark(bool isDark)
{
    current() = isDark ? &palette::kDark : &palette::kLight;
}

QPalette theme::palette()
{
    const Palette &c = colors();
    QPalette p;
    p.setColor(QPalette::Window, c.background);
    p.setColor(QPalette::WindowText, c.text);
    p.setColor(QPalette::Base, c.surface);
    p.setColor(QPalette::AlternateBase, c.surfaceAlt);
    p.setColor(QPalette::Text, c.text);
    p.setColor(QPalette::Button, c.surface);
    p.setColor(QPalette::ButtonText, c.text);
    p.setColor(QPalette::BrightText, c.bad);
    p.setColor(QPalette::Light, c.surface);
    p.setColor(QPalette::Midlight, c.surfaceAlt);
    p.setColor(QPalette::Mid, c.border);
    p.setColor(QPalette::Dark, c.borderStrong);
    p.setColor(QPalette::Shadow, c.outline);
    p.setColor(QPalette::Link, c.accentText);
    p.setColor(QPalette::LinkVisited, c.accentText);
    p.setColor(QPalette::ToolTipBase, c.toolTip);
    p.setColor(QPalette::ToolTipText, c.toolTipText);
    p.setColor(QPalette::PlaceholderText, c.textDisabled);
    p.setColor(QPalette::Highlight, c.accent);
    p.setColor(QPalette::HighlightedText, c.onAccent);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, c.textDisabled);
    return p;
}

QString theme::styleSheet()
{
    QString sheet = QStringLiteral(R"(
QMainWindow, QDialog { background: @background; }
QMenuBar { background: @surface; border-bottom: 1px solid @line; padding: 2px 8px; }
QMenuBar::item { padding: 4px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: @accentSoft; color: @accentText; }
QMenu { background: @surface; border: 1px solid @border; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 20px; border-radius: 4px; }
QMenu::item:selected { background: @accentSoft; color: @accentText; }
QMenu::item:disabled { color: @textDisabled; background: transparent; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
QToolBar { background: @surface; border: none; border-bottom: 1px solid @line; padding: 6px 8px; spacing: 8px; }
QToolBar::separator { background: @line; width: 1px; margin: 4px 4px; }
QStatusBar { background: @surface; border-top: 1px solid @line; padding: 0 8px; }
QStatusBar::item { border: none; }
QToolTip { background: @toolTip; color: @toolTipText; border: 1px solid @toolTip; padding: 4px 6px; }

QPushButton, QToolBar QToolButton {
    background: @surface; border: 1px solid @border; border-radius: 6px; padding: 6px 14px; color: @text;
    outline: none; }
QPushButton:hover, QToolBar QToolButton:hover { background: @surfaceAlt; border-color: @borderStrong; }
QPushButton:pressed, QToolBar QToolButton:pressed { background: @pressed; }
QPushButton:focus, QToolBar QToolButton:focus { border-color: @accent; }
QPushButton:disabled, QToolBar QToolButton:disabled { color: @textDisabled; background: @surfaceAlt; border-color: @line; }
QPushButton:default, QPushButton[primary="true"], QToolBar QToolButton[primary="true"] {
    background: @accent; border-color: @accent; color: @onAccent; }
QPushButton:default:hover, QPushButton[primary="true"]:hover, QToolBar QToolButton[primary="true"]:hover {
    background: @accentPressed; border-color: @accentPressed; }
QPushButton:default:focus, QPushButton[primary="true"]:focus, QToolBar QToolButton[primary="true"]:focus {
    border-color: @focusOnAccent; }
QPushButton:default:disabled, QPushButton[primary="true"]:disabled {
    background: @accentFaint; border-color: @accentFaint; color: @onAccentFaint; }
QPushButton[connected="true"]:disabled { color: @text; }
QToolButton#button_language { border: 0 solid transparent; border-right-width: 6px; border-radius: 4px;
    padding: 4px 16px 4px 10px; background-image: url(:/images/@chevron-down.png); background-repeat: no-repeat;
    background-position: right center; background-origin: padding; }
QToolButton#button_language:hover, QToolButton#button_language:pressed { background-color: @accentSoft; }
QToolButton#button_recording { border: none; border-radius: 4px; padding: 2px 10px; color: @bad; font-weight: bold; }
QToolButton#button_recording:hover { background: @badSoft; }
QToolBar QToolButton#qt_toolbar_ext_button { padding: 0; min-width: 16px; image: url(:/images/@chevron-down.png); }
QLabel#qt_msgbox_informativelabel { min-width: 360px; }

QLineEdit, QComboBox, QAbstractSpinBox, QPlainTextEdit {
    background: @surface; border: 1px solid @border; border-radius: 6px; padding: 4px 8px;
    selection-background-color: @accent; selection-color: @onAccent; }
QLineEdit:focus, QComboBox:focus, QAbstractSpinBox:focus, QPlainTextEdit:focus { border-color: @accent; }
QLineEdit:disabled, QComboBox:disabled, QAbstractSpinBox:disabled { background: @surfaceAlt; color: @textDisabled; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 24px; border: none; }
QComboBox::down-arrow { image: url(:/images/@chevron-down.png); width: 12px; height: 12px; }
QComboBox QAbstractItemView { border: 1px solid @border; selection-background-color: @accentSoft;
    selection-color: @accentText; }
QAbstractSpinBox::up-button { subcontrol-position: top right; width: 20px; border: none; }
QAbstractSpinBox::down-button { subcontrol-position: bottom right; width: 20px; border: none; }
QAbstractSpinBox::up-arrow { image: url(:/images/@chevron-up.png); width: 10px; height: 10px; }
QAbstractSpinBox::down-arrow { image: url(:/images/@chevron-down.png); width: 10px; height: 10px; }
QTreeView, QListView, QTableView {
    background: @surface; border: 1px solid @line; border-radius: 6px; outline: none;
    selection-background-color: @accentSoft; selection-color: @accentText; }
QTreeView::item, QListView::item, QTableView::item { padding: 4px 6px; border: 0; }
QTreeView::item:selected, QListView::item:selected, QTableView::item:selected { background: @accentSoft; color: @accentText; }
QHeaderView::section {
    background: @surface; color: @textSecondary; border: none; border-bottom: 1px solid @line; padding: 5px 8px; }

QCheckBox { spacing: 8px; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid @borderStrong; border-radius: 3px;
    background: @surface; }
QCheckBox::indicator:hover, QCheckBox::indicator:focus { border-color: @accent; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent; image: url(:/images/@check.png); }
QCheckBox::indicator:disabled { border-color: @border; background: @surfaceAlt; }
QCheckBox::indicator:checked:disabled { background: @accentFaint; border-color: @accentFaint; }
QCheckBox:disabled { color: @textDisabled; }

QFrame[card="true"] { background: @surface; border: 1px solid @line; border-radius: 8px; }
QLabel[role="title"] { color: @textSecondary; font-weight: 600; }
QLabel[role="headline"] { font-weight: 600; font-size: 16pt; }
QLabel[role="secondary"] { color: @textSecondary; }
QLabel[role="light"] { border-radius: 6px; background: @recording; }
QLabel[role="light"]:disabled { background: @border; }
QProgressBar { background: @line; border: none; border-radius: 5px; }
QProgressBar::chunk { background: @accent; border-radius: 5px; }
QLabel[role="warning"] { color: @warning; }

QScrollArea, QScrollArea > QWidget > QWidget#column_left { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
QScrollBar::handle { background: @border; border-radius: 3px; margin: 2px; min-height: 24px; min-width: 24px; }
QScrollBar::handle:hover { background: @borderStrong; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QTabWidget::pane { border: 1px solid @line; border-radius: 8px; background: @surface; top: -1px; }
QTabBar::tab { padding: 6px 16px; border: 1px solid transparent; color: @textSecondary; background: transparent; }
QTabBar::tab:selected { color: @accentText; border-bottom: 2px solid @accent; }
)");
    const Palette &c = colors();
    sheet.replace(QStringLiteral("@check"), c.isDark ? QStringLiteral("check-dark") : QStringLiteral("check"));
    sheet.replace(QStringLiteral("@chevron"), c.isDark ? QStringLiteral("chevron-dark") : QStringLiteral("chevron"));
    // The longer names first: "@accent" is a prefix of others.
    const std::pair<const char *, QColor> roles[] = {{"@accentPressed", c.accentPressed},
                                                     {"@accentFaint", c.accentFaint},
                                                     {"@accentSoft", c.accentSoft},
                                                     {"@accentText", c.accentText},
                                                     {"@accent", c.accent},
                                                     {"@background", c.background},
                                                     {"@badSoft", c.badSoft},
                                                     {"@bad", c.bad},
                                                     {"@borderStrong", c.borderStrong},
                                                     {"@border", c.border},
                                                     {"@focusOnAccent", c.focusOnAccent},
                                                     {"@line", c.line},
                                                     {"@onAccentFaint", c.onAccentFaint},
                                                     {"@onAccent", c.onAccent},
                                                     {"@pressed", c.pressed},
                                                     {"@recording", c.recording},
                                                     {"@surfaceAlt", c.surfaceAlt},
                                                     {"@surface", c.surface},
                                                     {"@textDisabled", c.textDisabled},
                                                     {"@textSecondary", c.textSecondary},
                                                     {"@text", c.text},
                                                     {"@toolTipText", c.toolTipText},
                                                     {"@toolTip", c.toolTip},
                                                     {"@warning", c.warning}};
    for (const auto &[name, color] : roles)
        sheet.replace(QLatin1String(name), color.name());
    return sheet;
}

void theme::apply(QApplication &application)
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(palette());
    application.setStyleSheet(styleSheet());
}

QFont theme::fixedPitchFont(qreal pointSize)
{
    QFont font(application_fonts::fixedPitchFamily());
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSizeF(pointSize);
    return font;
}
