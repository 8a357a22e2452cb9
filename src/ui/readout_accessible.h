#pragma once

/// What screen readers say about the painted figures, ValueCard and ValueStrip: their lines. Main thread only.
namespace readout_accessible {

/// To be called by each of them on construction.
void install();

} // namespace readout_accessible
