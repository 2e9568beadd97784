// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Prints a table of time values: the text, the kind that it is read as, the result, and what is printed.

#include <VySmil/time/vytime.h>

#include <cstdio>

int main()
{
    static const char *const kinds[] = {
        "TIME_OFFSET",      "TIME_SYNCBASE",   "TIME_EVENT", "TIME_REPEAT", "TIME_ACCESSKEY",
        "TIME_MEDIAMARKER", "TIME_WALLCLOCK",  "TIME_CLOCK", "TIME_TEXT",   "TIME_SMPTE",
        "TIME_PERCENT",     "TIME_INDEFINITE", "TIME_EMPTY"};
    std::printf("%-36s %-17s %s  %s\n", "text", "kind", "result", "prints");
    for (const char *text : {"5s",
                             "5000ms",
                             "1.5MIN",
                             "2h",
                             "2.5",
                             "02:05.5",
                             "01:02:05",
                             "npt=10s",
                             "+5s",
                             "-01:30",
                             "intro.end+2s",
                             "intro.beginEvent+2s",
                             "button.click+00:02",
                             "clip.repeat(2)+1s",
                             "accesskey(a)+0s",
                             "movie.marker(part2)",
                             "wallclock(2004-05-06T12:30:05.5+01:30)",
                             "smpte-25-drop",
                             "smpte-30-drop01:02:03:04",
                             "Indefinite",
                             "50%",
                             "5",
                             "media",
                             "",
                             "each",
                             "intro.end"}) {
        VySmil::VyTime time;
        const int result = time.fromString(text);
        std::printf("%-36.36s %-17s %-6d  %s\n", text, kinds[time.timeType], result,
                    qPrintable(time.toString()));
    }

    // Timecounts convert to milliseconds.
    VySmil::VyTime time;
    time.fromString("1.5min");
    std::printf("\n1.5min is %d ms\n", time.clockTime.timeCount.toMilliSeconds());
    return 0;
}
