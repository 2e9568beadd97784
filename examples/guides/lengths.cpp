// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// Reads and writes the lengths of a region.

#include <VySmil/VySmil>

#include <cstdio>

int main()
{
    std::printf("%-8s %-7s %-8s %s\n", "text", "result", "value", "prints");
    for (const char *text : {"120", "120px", "12.7", "50%", "33.3%", "-5", "12.5 %", "abc", ""}) {
        VySmil::VyLength length;
        const int result = length.fromString(text);
        QString value = "none";
        if (length.unit == VySmil::UNIT_PIXELS)
            value = QString("%1 px").arg(length.value.pixels);
        else if (length.unit == VySmil::UNIT_PERCENT)
            value = QString("%1 %").arg(static_cast<double>(length.value.percent));
        std::printf("%-8s %-7d %-8s %s\n", text, result, qPrintable(value), qPrintable(length.toString()));
    }

    VySmilElemRegion region;
    VySmil::VyLength width;
    width.unit = VySmil::UNIT_PERCENT;
    width.value.percent = 50;
    region.setWidth(width);
    region.setAttribute("height", "50%"); // the same length, written shorter
    std::printf("\nwidth=\"%s\" height=\"%s\"\n", qPrintable(region.getAttribute("width")),
                qPrintable(region.getAttribute("height")));
    std::printf("both are %g percent: %d\n", static_cast<double>(region.getWidth().value.percent),
                region.getWidth().value.percent == region.getHeight().value.percent);
    return 0;
}
