// The authors' own words to the checker: comments by which a file expects a finding, so that it is not told.
//
//     <!-- lcdcheck: expect ID, ID (reason) -->    in the element that follows, and in all below it; before the root,
//     in
//                                                  the whole file
//     ; lcdcheck: expect ID, ID (reason)           for the entry that follows, or for the section
#ifndef LCDCHECK_EXPECT_H
#define LCDCHECK_EXPECT_H

#include "check.h"

namespace lcdcheck {

/// Takes out what the files of the request expect, and adds a finding for each expectation that silences nothing. A
/// file that was checked alone may expect in vain what only shows in its whole root.
void applyExpectations(Findings& findings, const Request& request);

} // namespace lcdcheck

#endif
