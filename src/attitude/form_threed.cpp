#include "attitude/form_threed.h"

#include <QDebug>
#include <QEvent>
#include <QFileDialog>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuick3DGeometry>
#include <QQuickItem>
#include <QSGRendererInterface>
#include <QScrollBar>
#include <QSettings>
#include <QSignalBlocker>

#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "app/quick_window.h"
#include "app/quiet_label.h"
#include "app/settings_keys.h"
#include "app/theme.h"
#include "app/window_host.h"
#include "attitude/qt6_model_asset.h"
#include "ui_form_threed.h"

namespace {

constexpr int kReplotMs = 25;
constexpr int kSamplesPerPixel = 4; // the most that drawing without a GPU can do
constexpr QSize kSmallestView{160, 120};
constexpr QLatin1String kDefaultModel("jet.obj");
/// In the order of the selector's entries.
constexpr std::array kModels{QLatin1String("jet.obj"), QLatin1String("cube.obj"), QLatin1String("plane.obj"),
                             QLatin1String("spaceship.obj")};

QSettings settingsFile()
{
    return {settings_keys::kFile, QSettings::IniFormat};
}

} // namespace

form_threed::form_threed(QWidget *parent) : QWidget(parent, Qt::Window), m_ui(std::make_unique<Ui::form_threed>())
{
    m_ui->setupUi(this);
    m_replotTimer.setInterval(kReplotMs);
    m_replotTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_replotTimer, &QTimer::timeout, this, &form_threed::objectReplot);
    m_ui->LBL_model->hide();
    initView();
    showDefaultModel();
    setOrientationPreset(loadRotationPreset());
    updateRotationPresetUi();
    fitPanel();
    WindowHost::attachBare(this, settings_keys::kThreeDGeometry);
}

form_threed::~form_threed()
{
    close();
    endView(); // goes before the backend that it is bound to
}

void form_threed::initView()
{
    // The scene is drawn straight into the window, whose samples smooth its edges.
    m_view = new QuickWindow(kSamplesPerPixel);
    m_container = QWidget::createWindowContainer(m_view, m_ui->STK_stage);
    m_view->setGround(&Palette::surface);
    if (m_view->rendererInterface()->graphicsApi() == QSGRendererInterface::Software) {
        showNoPicture(
            QT_TR_NOOP("The 3D picture needs OpenGL, which is not available here. The numbers are complete."));
    } else {
        m_container->setFocusPolicy(Qt::StrongFocus);
        m_container->setMinimumSize(kSmallestView);
        m_ui->STK_stage->addWidget(m_container);
        m_ui->STK_stage->setCurrentWidget(m_container);
        connect(
            m_view, &QQuickWindow::sceneGraphError, this,
            [this](QQuickWindow::SceneGraphError /*error*/, const QString &message) {
                qWarning().noquote() << "3D view:" << message;
                showNoPicture(QT_TR_NOOP("The 3D picture cannot be drawn here. The numbers are complete."));
            },
            Qt::QueuedConnection);
        m_view->rootContext()->setContextProperty(QStringLiteral("backend"), &m_backend);
        if (!m_view->load(QUrl(QStringLiteral("qrc:/qml/ThreeDView.qml")), {}))
            showNoPicture(QT_TR_NOOP("The 3D picture could not be loaded. See the log for the reason."));
    }
}

/// A closed window keeps nothing that it has drawn with.
void form_threed::endView()
{
    releaseGeometries();
    m_view = nullptr;
    delete std::exchange(m_container, nullptr);
}

void form_threed::showDefaultModel()
{
    QString error;
    if (!loadobj(Qt6ModelAsset::defaultBundledObjFilePath(kDefaultModel), &error)) {
        qWarning().noquote() << "Failed to load default 3D asset:" << error;
        loadobj(Qt6ModelAsset::builtInScene(kDefaultModel), nullptr); // no window without a model
    }
}

/// A geometry that has changed since the last picture is in the scene's list of changes, and the toolkit does not
/// remove it when both are destroyed: whatever is destroyed after it would write into freed memory. Without a model it
/// leaves the list.
void form_threed::releaseGeometries()
{
    if (m_view == nullptr || m_view->rootObject() == nullptr)
        return;
    for (QObject *object : m_view->rootObject()->findChildren<QObject *>()) {
        if (object->inherits("QQuick3DModel"))
            object->setProperty("geometry", QVariant::fromValue<QQuick3DGeometry *>(nullptr));
    }
}

void form_threed::showNoPicture(const char *reason)
{
    m_noPicture = reason;
    updateNoPictureUi();
    m_ui->STK_stage->setCurrentWidget(m_ui->LBL_noPicture);
    m_ui->BTNResetCamera->setEnabled(false);
    m_container->hide();
    m_container->deleteLater(); // not at once: this may run while the view is busy
    m_container = nullptr;
    m_view = nullptr;
}

void form_threed::updateNoPictureUi()
{
    if (!m_noPicture)
        return;
    m_ui->LBL_noPicture->setText(tr(m_noPicture));
    m_ui->BTNResetCamera->setToolTip(tr(m_noPicture));
}

void form_threed::open()
{
    WindowHost::bringUp(this);
}

void form_threed::setAttitude(const NormalizedAttitude &attitude)
{
    m_attitude = std::isfinite(attitude.quaternion.length()) ? attitude : NormalizedAttitude();
}

void form_threed::startThreeDPlot()
{
    objectReplot();
    m_replotTimer.start();
}

void form_threed::stopThreeDPlot()
{
    m_replotTimer.stop();
}

void form_threed::objectReplot()
{
    if (m_isAwaitingHome && m_attitude.valid)
        captureHome();
    m_backend.setAttitude(m_attitude.quaternion, m_attitude.euler);
    std::optional<QVector3D> relative;
    if (const std::optional<QQuaternion> home = m_homes.current(); home && m_attitude.valid) {
        relative = attitude_convention::relativeDisplayEuler(m_attitude.quaternion, *home);
        m_backend.setRelativeEuler(*relative);
    }
    m_ui->figures->show(m_attitude, relative);
    updateHomeReferenceUi();
}

void form_threed::setOrientationPreset(OrientationPreset preset)
{
    setMounting(m_homes.product(), preset);
}

void form_threed::setMounting(const QString &product, OrientationPreset preset)
{
    const QSignalBlocker blocker(m_ui->CBRotationPreset);
    m_ui->CBRotationPreset->setCurrentIndex(preset == OrientationPreset::RfuEnu312   ? 0
                                            : preset == OrientationPreset::FluNwuZyx ? 1
                                                                                     : -1);
    applyMounting(product, preset);
}

void form_threed::applyMounting(const QString &product, OrientationPreset preset)
{
    if (preset != m_preset || product != m_homes.product())
        m_isAwaitingHome = false;
    m_preset = preset;
    m_homes.setMounting(product, preset);
    m_backend.setBodyAxes(
        BodyAxesBasis::fromAxisMatrix(attitude_convention::toDisplayAttitude(0, 0, 0, preset).axisMatrix));
    updateRotationPresetUi();
    showHome();
}

void form_threed::on_CBRotationPreset_currentIndexChanged(int index)
{
    if (index != 0 && index != 1)
        return;
    applyMounting(m_homes.product(), index == 0 ? OrientationPreset::RfuEnu312 : OrientationPreset::FluNwuZyx);
    saveRotationPreset();
    emit orientationPresetChanged(m_preset);
}

OrientationPreset form_threed::loadRotationPreset() const
{
    return settingsFile().value(settings_keys::kRotationPreset).toInt() == 1 ? OrientationPreset::FluNwuZyx
                                                                             : OrientationPreset::RfuEnu312;
}

void form_threed::saveRotationPreset() const
{
    settingsFile().setValue(settings_keys::kRotationPreset, int(m_preset));
}

void form_threed::updateRotationPresetUi()
{
    switch (m_preset) {
    case OrientationPreset::RfuEnu312:
        m_ui->LBL_preset->setText(tr("Current preset: RFU body / ENU navigation, Euler 312 intrinsic (Z-X-Y)."));
        return;
    case OrientationPreset::FluNwuZyx:
        m_ui->LBL_preset->setText(tr("Current preset: FLU body or NWU body, Euler ZYX intrinsic (Z-Y-X)."));
        return;
    case OrientationPreset::None:
        break;
    }
    m_ui->LBL_preset->setText(tr("Current preset: Unknown."));
}

void form_threed::on_BTNSetHome_clicked()
{
    if (m_attitude.valid)
        captureHome();
    else
        m_isAwaitingHome = true;
    objectReplot();
}

void form_threed::captureHome()
{
    m_homes.capture(m_attitude.quaternion);
    m_isAwaitingHome = false;
    m_backend.setHomeReference(m_attitude.quaternion, true);
}

void form_threed::on_BTNClearHome_clicked()
{
    clearHomeReference();
}

void form_threed::clearHomeReference()
{
    m_homes.clear();
    m_isAwaitingHome = false;
    showHome();
}

void form_threed::showHome()
{
    const std::optional<QQuaternion> home = m_homes.current();
    m_backend.setHomeReference(home.value_or(QQuaternion()), home.has_value());
    m_backend.setRelativeEuler({});
    objectReplot();
}

void form_threed::updateHomeReferenceUi()
{
    QString text = tr("Capture the current live pose as Home to compare mounting bias and installation offsets.");
    const bool hasHome = m_homes.current().has_value();
    if (hasHome)
        text = tr("Home pose captured. Delta shows the live attitude relative to the stored home reference.");
    else if (m_isAwaitingHome)
        text = tr("Waiting for live attitude data to capture home pose.");
    setTextIfChanged(m_ui->LBL_home, text);
    m_ui->BTNClearHome->setEnabled(hasHome || m_isAwaitingHome);
    setTextIfChanged(m_ui->LBL_source, !m_attitude.valid           ? tr("No attitude")
                                       : m_attitude.fromQuaternion ? tr("From quaternion")
                                                                   : tr("From Euler angles"));
}

void form_threed::on_CBModel_activated(int index)
{
    chooseModel(Qt6ModelAsset::builtInScene(kModels.at(size_t(index))));
}

void form_threed::on_BNTLoad_clicked()
{
    QString folder = settingsFile().value(settings_keys::kThreeDFolder).toString();
    if (folder.isEmpty())
        folder = QFileInfo(Qt6ModelAsset::defaultBundledObjFilePath(kDefaultModel)).path();
    auto *dialog = new QFileDialog(this, tr("Open 3D asset"), folder, tr("3D Assets (*.obj *.mesh)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &form_threed::chooseFile);
    dialog->open();
}

void form_threed::chooseFile(const QString &path)
{
    settingsFile().setValue(settings_keys::kThreeDFolder, QFileInfo(path).path());
    chooseModel(path);
}

void form_threed::chooseModel(const QString &path)
{
    QString error;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor); // a large model takes a second
    loadobj(path, &error);
    QGuiApplication::restoreOverrideCursor();
    m_ui->LBL_model->setText(error);
    m_ui->LBL_model->setVisible(!error.isEmpty());
}

bool form_threed::loadobj(const QString &path, QString *error)
{
    QString problem;
    const QUrl source = Qt6ModelAsset::resolveModelSource(path, &problem);
    if (!source.isEmpty()) {
        const QUrl previous = m_backend.objSource();
        m_backend.setObjSource({}); // a file that has changed is read again
        m_backend.setObjSource(source);
        problem = modelError();
        if (!problem.isEmpty())
            m_backend.setObjSource(previous);
    }
    if (error)
        *error = problem;
    updateModelUi();
    return problem.isEmpty();
}

QString form_threed::modelError() const
{
    return m_view && m_view->rootObject() ? m_view->rootObject()->property("modelError").toString() : QString();
}

void form_threed::updateModelUi()
{
    const QUrl source = m_backend.objSource();
    int index = -1;
    for (size_t i = 0; i < kModels.size(); ++i) {
        if (QUrl(Qt6ModelAsset::builtInScene(kModels[i])) == source)
            index = int(i);
    }
    m_ui->CBModel->setPlaceholderText(source.fileName());
    m_ui->CBModel->setCurrentIndex(index);
    m_ui->CBModel->setToolTip(index < 0 ? QStringLiteral("<span>%1</span>").arg(source.toLocalFile().toHtmlEscaped())
                                        : QString());
}

void form_threed::on_BTNResetCamera_clicked()
{
    m_backend.resetCamera();
}

void form_threed::showEvent(QShowEvent *event)
{
    if (!m_view && !m_noPicture) {
        initView();
        if (!modelError().isEmpty()) // its file has changed in the meantime
            showDefaultModel();
    }
    QWidget::showEvent(event);
    startThreeDPlot();
}

void form_threed::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    stopThreeDPlot();
    if (!event->spontaneous())
        endView();
}

void form_threed::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::WindowStateChange:
        if (isMinimized())
            stopThreeDPlot();
        else if (isVisible())
            startThreeDPlot();
        break;
    case QEvent::LanguageChange:
        m_ui->retranslateUi(this);
        m_ui->LBL_model->hide();
        updateRotationPresetUi();
        updateHomeReferenceUi();
        updateModelUi();
        updateNoPictureUi();
        fitPanel();
        break;
    case QEvent::FontChange:
        fitPanel();
        break;
    default:
        break;
    }
}

/// The panel is as wide as its numbers and buttons need; its sentences wrap.
void form_threed::fitPanel()
{
    m_ui->panel->ensurePolished();
    const int content = qMax(m_ui->panel->minimumSizeHint().width(), fontMetrics().horizontalAdvance(u'0') * 40);
    m_ui->SCR_panel->setFixedWidth(content + m_ui->SCR_panel->verticalScrollBar()->sizeHint().width());
}
