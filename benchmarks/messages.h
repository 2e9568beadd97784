// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_BENCHMARKS_MESSAGES_H
#define VYSMIL_BENCHMARKS_MESSAGES_H

#include <QString>

/// A message of \a pars slides, each with a picture, a text and sound, as a phone writes it.
inline QString message(int pars)
{
    QString text = QStringLiteral(
        "<smil>\n<head>\n<layout>\n<root-layout width=\"176\" height=\"144\"/>\n"
        "<region id=\"Image\" left=\"0\" top=\"0\" width=\"176\" height=\"100\" fit=\"meet\"/>\n"
        "<region id=\"Text\" left=\"0\" top=\"70%\" width=\"100%\" height=\"30%\"/>\n"
        "</layout>\n</head>\n<body>\n");
    for (int i = 0; i < pars; ++i) {
        text += QStringLiteral(
                    "<par dur=\"5000ms\">\n<img src=\"picture%1.jpg\" region=\"Image\" alt=\"a picture\"/>\n"
                    "<text src=\"text%1.txt\" region=\"Text\" begin=\"500ms\"/>\n"
                    "<audio src=\"sound%1.amr\" begin=\"1s\" end=\"4.5s\"/>\n</par>\n")
                    .arg(i);
    }
    return text + QStringLiteral("</body>\n</smil>\n");
}

/// A message of about \a size characters.
inline QString messageOfSize(qsizetype size)
{
    const qsizetype frame = message(0).size();
    const qsizetype par = message(1).size() - frame;
    return message(static_cast<int>(std::max<qsizetype>(1, (size - frame) / (par + 12))));
}

#endif
