// SPDX-License-Identifier: MIT
#include "zbbrowse/Complaint.h"

#include "text/DisplayText.h"

#include <cstdio>

namespace zbbrowse {

void Complain(std::string const& what) {
    std::string line = "zbbrowse: ";
    zbtext::AppendShown(line, what);
    line += '\n';
    std::fputs(line.c_str(), stderr);
}

} // namespace zbbrowse
