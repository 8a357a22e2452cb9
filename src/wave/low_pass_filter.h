#pragma once

/// First-order low-pass filter with a single state value: y := x + (y - x) * a with a = exp(-omega * dt). Starts at 0.
class LowPassFilter
{
public:
    /// `omega` is the angular cutoff in rad/s, `dt` the sample time in seconds. Throws std::domain_error when dt is
    /// larger than omega: the cutoff is too low for the rate.
    LowPassFilter(double omega, double dt);
    virtual ~LowPassFilter() = default;
    LowPassFilter(const LowPassFilter &) = default;
    LowPassFilter &operator=(const LowPassFilter &) = default;

    /// Takes the next sample. A value that is not finite would stay in the output for ever; callers must leave it out.
    void update(double x) { m_output = (m_output - x) * m_coefficient + x; }
    double getOutput() const { return m_output; }
    /// Back to 0, with the same cutoff.
    void restart() { m_output = 0; }

private:
    double m_coefficient;
    double m_sampleTime; ///< seconds
    double m_output = 0;
};
