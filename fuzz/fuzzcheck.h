// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_FUZZ_FUZZCHECK_H
#define VYSMIL_FUZZ_FUZZCHECK_H

#include <QString>

#include <cstdio>
#include <cstdlib>

/// Ends the program, as a sanitizer would, if \a a and \a b differ.
inline void checkSame(const char *what, const QString &input, const QString &a, const QString &b)
{
    if (a == b)
        return;
    std::fprintf(stderr, "%s\ninput:  %s\nfirst:  %s\nsecond: %s\n", what, qPrintable(input), qPrintable(a),
                 qPrintable(b));
    std::abort();
}

#endif
