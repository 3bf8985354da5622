#pragma once

namespace borvik {

/// What the program's exit tells a script. Of several projects the highest counts.
enum ExitCode {
    kDone = 0,
    kRatioAbove = 1,  ///< a ratio is above the one given with --fail-above
    kUsage = 2,
    kRefused = 3,    ///< by the input checks
    kFault = 4,      ///< a run-time fault ended the calculation
    kFileFault = 5,  ///< a file can't be read or written
};

}  // namespace borvik
