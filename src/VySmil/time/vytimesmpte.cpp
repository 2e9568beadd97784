// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>
#include <VySmil/time/vytimesmpte.h>
#include <VySmil/values/keyword_p.h>
#include <VySmil/values/number_p.h>

namespace {

// The longer names come first, so that none is taken for the one that it starts with.
constexpr QStringView kinds[] = {
    u"smpte-24-drop", u"smpte-30-drop", u"smpte-60-drop", u"smpte-24",
    u"smpte-30",      u"smpte-60",      u"smpte-25",      u"smpte-50",
};

QStringView findKind(QStringView text)
{
    for (const QStringView kind : kinds) {
        if (VySmilPrivate::startsLowered(text, kind))
            return kind;
    }
    return {};
}

} // namespace

int VySmil::VyTimeSmpte::fromString(const QString &text)
{
    const QString own = text.trimmed(); // the text may be the field that is written first
    QStringView rest = own;
    const QStringView kind = findKind(rest);
    if (kind.isNull())
        return RESULT_UNUSABLE;
    smpteType = kind.toString();
    rest = rest.sliced(kind.size());

    for (quint32 *field : {&hours, &minutes}) {
        const QStringView piece = VySmilPrivate::cutAt(u':', rest);
        if (piece.isNull() || !VySmilPrivate::readUnsigned(piece, *field))
            return RESULT_UNUSABLE;
    }
    const QStringView secondsBeforeFrames = VySmilPrivate::cutAt(u':', rest);
    if (!secondsBeforeFrames.isNull()) {
        return VySmilPrivate::resultOf(VySmilPrivate::readUnsigned(secondsBeforeFrames, seconds) &&
                                       VySmilPrivate::readUnsigned(rest, frames));
    }
    if (!VySmilPrivate::readUnsigned(rest, seconds))
        return RESULT_UNUSABLE;
    frames = 0;
    return RESULT_OK;
}

QString VySmil::VyTimeSmpte::toString() const
{
    QString text = smpteType + VySmilPrivate::twoDigits(hours) + u':' + VySmilPrivate::twoDigits(minutes) +
                   u':' + VySmilPrivate::twoDigits(seconds);
    if (frames != 0)
        text += u':' + VySmilPrivate::twoDigits(frames);
    return text;
}
