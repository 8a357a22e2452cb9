#pragma once

/// What screen readers say of the painted figures, ValueCard and ValueStrip: their lines. Main thread only.
namespace readout_accessible {

/// To be called by each of them when it is made.
void install();

} // namespace readout_accessible
