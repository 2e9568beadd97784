// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/time/clocktext_p.h>

int VySmilPrivate::readTime(QStringView text, VySmil::VyTimeOffset &time)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.startsWith(u'+') && !trimmed.startsWith(u'-'))
        return VySmil::RESULT_UNUSABLE;
    time.positive = trimmed.startsWith(u'+');
    return readTime(trimmed.sliced(1), time.clock);
}

int VySmil::VyTimeOffset::fromString(const QString &text)
{
    return VySmilPrivate::readTime(text, *this);
}

QString VySmil::VyTimeOffset::toString() const
{
    return QChar(positive ? u'+' : u'-') + clock.toString();
}
