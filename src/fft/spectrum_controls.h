#pragma once

#include <array>

#include <QString>
#include <QWidget>

#include "fft/fft_sampler.h"
#include "fft/spectrum_choices.h"

class CeilingField;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;

/// The controls above the spectrum: a row that ends with the status, or two where that is too wide. It holds the
/// choices and emits each choice of the user; there is a separate ceiling of the amplitude axis for each type of
/// spectrum. Main thread only.
class SpectrumControls : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SpectrumControls)

public:
    explicit SpectrumControls(QWidget *parent = nullptr);

    /// Type of spectrum, with its name, the title of its value axis and its unit.
    FftSpectrumType type() const;
    QString typeName() const;
    QString valueAxisTitle() const;
    QString unit() const;
    bool ignoresSteadyValue() const;
    /// Ceiling of the amplitude axis for the current type, in its unit.
    double currentYAxisMax();
    /// Where the amplitude axis ends instead, in the same unit; 0 while it ends at the ceiling.
    void setMaximumInForce(double maximum);

    /// The choices of this row: takes them as if the user had made them, and writes them.
    void setChoices(const SpectrumChoices &choices);
    void addChoices(SpectrumChoices &choices) const;

    void setRunning(bool running);
    void setStatus(const QString &text);
    /// Updates all texts to the current language.
    void retranslate();

signals:
    void startClicked();
    void typeChosen(int index);
    void pointsChosen(const QString &text);
    void windowChosen(int index);
    void holdChosen(int index);
    void yAxisMaxChosen(double value);
    void ignoreSteadyValueChosen(bool ignore);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void configureControls();
    void applyLook();
    void layOut();
    void placeTail();
    void updateYAxisControl();
    double currentYAxisHardLimit() const;

    QComboBox *m_type;
    QComboBox *m_points;
    QComboBox *m_window;
    QComboBox *m_hold;
    CeilingField *m_yAxisMax;
    QPushButton *m_start;
    QLabel *m_pointsLabel;
    QLabel *m_windowLabel;
    QLabel *m_holdLabel;
    QLabel *m_yAxisLabel;
    QWidget *m_tail; ///< what moves to the second row where the first has no room
    QCheckBox *m_ignoreSteady;
    QLabel *m_status;
    QHBoxLayout *m_firstRow;
    QHBoxLayout *m_secondRow;

    bool m_running = false;
    std::array<double, 2> m_storedYAxisMax{}; ///< by type, mG and deg/s; 0 for the default
};
