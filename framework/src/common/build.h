// What a program says when it is asked for its version.
#ifndef LCDCOMMON_BUILD_H
#define LCDCOMMON_BUILD_H

namespace lcdcommon {

/// The version and, where the tree's history was there when it was configured, the commit: "1.0.0 (build 1a2b3c4)".
extern const char build[];

} // namespace lcdcommon

#endif
