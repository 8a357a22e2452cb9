#pragma once

#include <QTimer>
#include <QWidget>

#include <memory>

#include "attitude/attitude_backend.h"
#include "attitude/attitude_convention.h"
#include "attitude/home_references.h"

class QuickWindow;

namespace Ui {
class form_threed;
}

/// The 3D window: a model in the pose of the selected node, its numbers, a home reference to compare with, and the
/// choices of mounting and model.
///
/// The newest attitude is stored as fast as it arrives and shown every 25 ms while the window is visible; nothing is
/// drawn while it is closed, hidden or minimised. Where the picture cannot be drawn, a sentence takes its place and the
/// numbers go on. Closing hides the window; it keeps model and home, and releases the graphics resources. Place,
/// mounting and the like are in the settings file, group "THREED". Main thread only.
class form_threed : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_threed)

public:
    explicit form_threed(QWidget *parent = nullptr);
    ~form_threed() override;

    /// Shows the window, or brings it to the front.
    void open();

    /// The newest attitude of the selected node; one that is not valid, or not finite, when there is none.
    void setAttitude(const NormalizedAttitude &attitude);

    /// Shows another mounting, or another product's (its key; empty: none is known), without storing or reporting it.
    /// Each mounting has a home reference of its own, see HomeReferences. The displayed attitude stays as it was given:
    /// pass it again, expressed in the new axes.
    void setMounting(const QString &product, OrientationPreset preset);
    /// Another mounting of the same product.
    void setOrientationPreset(OrientationPreset preset);
    OrientationPreset orientationPreset() const { return m_preset; }

    void startThreeDPlot();
    void stopThreeDPlot();
    bool isPlotting() const { return m_replotTimer.isActive(); }

    /// Forgets the home reference of this mounting, and a pending request to capture one.
    void clearHomeReference();

    /// Shows another model. On failure the model stays, with a sentence for the user in `error` (may be null).
    bool loadobj(const QString &path, QString *error);

    AttitudeBackend &backend() { return m_backend; }
    /// The picture, while the window is open; null where it cannot be drawn.
    QuickWindow *view() const { return m_view; }

signals:
    /// The user chose another mounting; it belongs to the current product.
    void orientationPresetChanged(OrientationPreset preset);

public slots:
    /// Shows the newest attitude now.
    void objectReplot();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void on_CBRotationPreset_currentIndexChanged(int index);
    void on_CBModel_activated(int index);
    /// Without live data the next attitude is captured.
    void on_BTNSetHome_clicked();
    void on_BTNClearHome_clicked();
    void on_BNTLoad_clicked();
    void on_BTNResetCamera_clicked();

private:
    void initView();
    void endView();
    void showDefaultModel();
    /// What is wrong with the model to be shown; empty when nothing is known to be wrong.
    QString modelError() const;
    void releaseGeometries();
    /// Puts a sentence, not yet translated, in place of the picture.
    void showNoPicture(const char *reason);
    void updateNoPictureUi();
    void applyMounting(const QString &product, OrientationPreset preset);
    void captureHome();
    void showHome();
    void chooseFile(const QString &path);
    /// loadobj() for the user: a failure is reported in the window.
    void chooseModel(const QString &path);
    OrientationPreset loadRotationPreset() const;
    void saveRotationPreset() const;
    void updateRotationPresetUi();
    void updateHomeReferenceUi();
    void updateModelUi();
    void fitPanel();

    std::unique_ptr<Ui::form_threed> m_ui;
    AttitudeBackend m_backend;
    QWidget *m_container = nullptr; ///< holds and owns m_view
    QuickWindow *m_view = nullptr;
    const char *m_noPicture = nullptr; ///< why there is none
    QTimer m_replotTimer;
    NormalizedAttitude m_attitude;
    HomeReferences m_homes;
    OrientationPreset m_preset = OrientationPreset::RfuEnu312;
    bool m_isAwaitingHome = false;
};
