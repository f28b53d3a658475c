#pragma once

#include "cmd_Session.h"

/// Carries out one line of a script. For a line that is a path, the value there; otherwise nothing happens to
/// be said. Throws as the session does, and `cmd_Error` for a line that does not read.
///
///     model.TabularAmplitude(name='ramp', data=((0.0, 0.0), (1.0, 1.0)))
///     model.amplitudes['ramp'].setValues(timeSpan=TOTAL)
///     model.amplitudes['ramp'].smooth = 0.25
///     model.amplitudes['ramp'].rename(name='slope')
///     del model.amplitudes['slope']
///     model.undo()
///     model.redo()
///     model.amplitudes['ramp'].data
OVR_EXPORT std::string cmd_Run(cmd_Session& session, const std::string& line);
