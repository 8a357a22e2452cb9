#include "wave/low_pass_filter.h"

#include <cmath>
#include <stdexcept>

LowPassFilter::LowPassFilter(double omega, double dt) : m_coefficient(std::exp(-omega * dt)), m_sampleTime(dt)
{
    // The limit that users know compares the sample time with the angular cutoff itself.
    if (m_sampleTime > omega)
        throw std::domain_error("LowPassFilter constructor error: tua_c is smaller than the sample time dt.");
}
