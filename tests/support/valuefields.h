// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_VALUEFIELDS_H
#define VYSMIL_TESTS_VALUEFIELDS_H

#include <VySmil/VySmil>

#include <QStringList>

#include <type_traits>

/// The fields of a value as text, numbers with nine digits, so that every float shows.
template <typename... Field>
QString joined(const Field &...fields)
{
    const auto shown = [](const auto &field) {
        using Type = std::decay_t<decltype(field)>;
        if constexpr (std::is_floating_point_v<Type>)
            return QString::number(static_cast<double>(field), 'g', 9);
        else if constexpr (std::is_convertible_v<Type, QString>)
            return QString(field);
        else
            return QString::number(static_cast<qint64>(field));
    };
    return QStringList{shown(fields)...}.join(u' ');
}

struct Fields
{
    static QString of(const VySmil::VyCount &v) { return joined(v.kind, v.value); }
    static QString of(const VySmil::VyIndex &v) { return joined(v.kind, v.value); }
    static QString of(const VySmil::VyBandWidth &v) { return joined(v.kind, v.value); }
    static QString of(const VySmil::VyMediaLength &v)
    {
        return v.kind == VySmil::NUMBER_PERCENT ? joined(v.kind, v.value.percent)
                                                : joined(v.kind, v.value.number);
    }
    static QString of(const VySmil::VyLength &v)
    {
        return v.unit == VySmil::UNIT_PERCENT ? joined(v.unit, v.value.percent)
                                              : joined(v.unit, v.value.pixels);
    }
    static QString of(const VySmil::VySize &v)
    {
        return v.unit == VySmil::UNIT_PERCENT ? joined(v.unit, v.value.fraction)
                                              : joined(v.unit, v.value.pixels);
    }
    static QString of(const VySmil::VyCoords &v)
    {
        QString text = joined(v.unit);
        for (const auto &slot : v.coords)
            text += u' ' + (v.unit == VySmil::UNIT_PERCENT ? joined(slot.fraction) : joined(slot.pixels));
        return text;
    }
    static QString of(const VySmil::VyColor &v)
    {
        return joined(v.kind, v.color.isValid() ? v.color.name() : "none", v.name);
    }
    static QString of(const VySmil::VyTimeCount &v) { return joined(v.value, v.metric); }
    static QString of(const VySmil::VyTimeFullClock &v) { return joined(v.hours, v.minutes, v.seconds); }
    static QString of(const VySmil::VyTimePartialClock &v) { return joined(v.minutes, v.seconds); }
    static QString of(const VySmil::VyTimeClock &v)
    {
        return joined(v.clockType) + ": " + of(v.timeCount) + ", " + of(v.fullClock) + ", " +
               of(v.partialClock);
    }
    static QString of(const VySmil::VyTimeOffset &v)
    {
        const QStringList members{of(v.clock.timeCount), of(v.clock.fullClock), of(v.clock.partialClock)};
        return (v.positive ? u'+' : u'-') + members.value(v.clock.clockType);
    }
    static QString of(const VySmil::VyTimeSmpte &v)
    {
        return joined(v.hours, v.minutes, v.seconds, v.frames, v.smpteType);
    }
    static QString of(const VySmil::VyTimeSycBase &v)
    {
        return joined(v.id, v.isBegin ? "begin" : "end", of(v.offset));
    }
    static QString of(const VySmil::VyTimeEvent &v) { return joined(v.id, v.event, of(v.offset)); }
    static QString of(const VySmil::VyTimeRepeat &v) { return joined(v.id, v.iteration, of(v.offset)); }
    static QString of(const VySmil::VyTimeAccessKey &v) { return joined(v.key, of(v.offset)); }
    static QString of(const VySmil::VyTimeMediaMarker &v) { return joined(v.id, v.markerName); }
    static QString of(const VySmil::VyWallClockSyncTime &v)
    {
        return joined(v.date.isNull() ? "none" : v.date.toString(Qt::ISODate), v.hours, v.minutes, v.seconds,
                      v.utc ? "utc" : "local", (v.offsetPositive ? u'+' : u'-') + joined(v.offsetHours),
                      v.offsetMinutes);
    }
    /// The kind alone: the members are checked by their own rows.
    static QString of(const VySmil::VyTime &v) { return joined(v.timeType); }
};

template <typename Value>
QString fieldsOf(const Value &value)
{
    return Fields::of(value);
}

#endif
