#include "app/theme.h"

#include <QApplication>
#include <QStyleFactory>

#include "app/application_fonts.h"

QPalette theme::palette()
{
    QPalette p;
    p.setColor(QPalette::Window, kBackground);
    p.setColor(QPalette::WindowText, kText);
    p.setColor(QPalette::Base, kSurface);
    p.setColor(QPalette::AlternateBase, QColor(0xF9, 0xFA, 0xFB));
    p.setColor(QPalette::Text, kText);
    p.setColor(QPalette::Button, kSurface);
    p.setColor(QPalette::ButtonText, kText);
    p.setColor(QPalette::ToolTipBase, kText);
    p.setColor(QPalette::ToolTipText, kSurface);
    p.setColor(QPalette::PlaceholderText, kTextDisabled);
    p.setColor(QPalette::Highlight, kAccent);
    p.setColor(QPalette::HighlightedText, kSurface);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, kTextDisabled);
    return p;
}

QString theme::styleSheet()
{
    return QStringLiteral(R"(
QMainWindow, QDialog { background: #F3F4F6; }
QMenuBar { background: #FFFFFF; border-bottom: 1px solid #E5E7EB; padding: 2px 8px; }
QMenuBar::item { padding: 4px 10px; border-radius: 4px; background: transparent; }
QMenuBar::item:selected { background: #EFF6FF; color: #1D4ED8; }
QMenu { background: #FFFFFF; border: 1px solid #D1D5DB; padding: 4px; }
QMenu::item { padding: 6px 28px 6px 20px; border-radius: 4px; }
QMenu::item:selected { background: #EFF6FF; color: #1D4ED8; }
QMenu::item:disabled { color: #9CA3AF; background: transparent; }
QMenu::separator { height: 1px; background: #E5E7EB; margin: 4px 8px; }
QToolBar { background: #FFFFFF; border: none; border-bottom: 1px solid #E5E7EB; padding: 6px 8px; spacing: 8px; }
QToolBar::separator { background: #E5E7EB; width: 1px; margin: 4px 4px; }
QStatusBar { background: #FFFFFF; border-top: 1px solid #E5E7EB; padding: 0 8px; }
QStatusBar::item { border: none; }
QToolTip { background: #111827; color: #FFFFFF; border: 1px solid #111827; padding: 4px 6px; }

QPushButton, QToolBar QToolButton {
    background: #FFFFFF; border: 1px solid #D1D5DB; border-radius: 6px; padding: 6px 14px; color: #1F2937;
    outline: none; }
QPushButton:hover, QToolBar QToolButton:hover { background: #F9FAFB; border-color: #9CA3AF; }
QPushButton:pressed, QToolBar QToolButton:pressed { background: #E5E7EB; }
QPushButton:focus, QToolBar QToolButton:focus { border-color: #2563EB; }
QPushButton:disabled, QToolBar QToolButton:disabled { color: #9CA3AF; background: #F9FAFB; border-color: #E5E7EB; }
QPushButton:default, QPushButton[primary="true"], QToolBar QToolButton[primary="true"] {
    background: #2563EB; border-color: #2563EB; color: #FFFFFF; }
QPushButton:default:hover, QPushButton[primary="true"]:hover, QToolBar QToolButton[primary="true"]:hover {
    background: #1D4ED8; border-color: #1D4ED8; }
QPushButton:default:focus, QPushButton[primary="true"]:focus, QToolBar QToolButton[primary="true"]:focus {
    border-color: #1E3A8A; }
QPushButton:default:disabled, QPushButton[primary="true"]:disabled {
    background: #BFDBFE; border-color: #BFDBFE; color: #FFFFFF; }
QPushButton[connected="true"]:disabled { color: #1F2937; }
QToolButton#button_language { border: 0 solid transparent; border-right-width: 6px; border-radius: 4px;
    padding: 4px 16px 4px 10px; background-image: url(:/images/chevron-down.png); background-repeat: no-repeat;
    background-position: right center; background-origin: padding; }
QToolButton#button_language:hover, QToolButton#button_language:pressed { background-color: #EFF6FF; }
QToolButton#button_recording { border: none; border-radius: 4px; padding: 2px 10px; color: #B91C1C; font-weight: bold; }
QToolButton#button_recording:hover { background: #FEF2F2; }
QToolBar QToolButton#qt_toolbar_ext_button { padding: 0; min-width: 16px; image: url(:/images/chevron-down.png); }
QLabel#qt_msgbox_informativelabel { min-width: 360px; }

QLineEdit, QComboBox, QAbstractSpinBox, QPlainTextEdit {
    background: #FFFFFF; border: 1px solid #D1D5DB; border-radius: 6px; padding: 4px 8px;
    selection-background-color: #2563EB; selection-color: #FFFFFF; }
QLineEdit:focus, QComboBox:focus, QAbstractSpinBox:focus, QPlainTextEdit:focus { border-color: #2563EB; }
QLineEdit:disabled, QComboBox:disabled, QAbstractSpinBox:disabled { background: #F9FAFB; color: #9CA3AF; }
QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right; width: 24px; border: none; }
QComboBox::down-arrow { image: url(:/images/chevron-down.png); width: 12px; height: 12px; }
QComboBox QAbstractItemView { border: 1px solid #D1D5DB; selection-background-color: #EFF6FF;
    selection-color: #1D4ED8; }
QAbstractSpinBox::up-button { subcontrol-position: top right; width: 20px; border: none; }
QAbstractSpinBox::down-button { subcontrol-position: bottom right; width: 20px; border: none; }
QAbstractSpinBox::up-arrow { image: url(:/images/chevron-up.png); width: 10px; height: 10px; }
QAbstractSpinBox::down-arrow { image: url(:/images/chevron-down.png); width: 10px; height: 10px; }
QTreeView, QListView, QTableView {
    background: #FFFFFF; border: 1px solid #E5E7EB; border-radius: 6px; outline: none;
    selection-background-color: #EFF6FF; selection-color: #1D4ED8; }
QTreeView::item, QListView::item, QTableView::item { padding: 4px 6px; border: 0; }
QTreeView::item:selected, QListView::item:selected, QTableView::item:selected { background: #EFF6FF; color: #1D4ED8; }
QHeaderView::section {
    background: #FFFFFF; color: #4B5563; border: none; border-bottom: 1px solid #E5E7EB; padding: 5px 8px; }

QFrame[card="true"] { background: #FFFFFF; border: 1px solid #E5E7EB; border-radius: 8px; }
QLabel[role="title"] { color: #4B5563; font-weight: 600; }
QLabel[role="headline"] { font-weight: 600; font-size: 16pt; }
QLabel[role="secondary"] { color: #4B5563; }
QLabel[role="warning"] { color: #B45309; }

QScrollArea, QScrollArea > QWidget > QWidget#column_left { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
QScrollBar::handle { background: #D1D5DB; border-radius: 3px; margin: 2px; min-height: 24px; min-width: 24px; }
QScrollBar::handle:hover { background: #9CA3AF; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QTabWidget::pane { border: 1px solid #E5E7EB; border-radius: 8px; background: #FFFFFF; top: -1px; }
QTabBar::tab { padding: 6px 16px; border: 1px solid transparent; color: #4B5563; background: transparent; }
QTabBar::tab:selected { color: #1D4ED8; border-bottom: 2px solid #2563EB; }
)");
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
