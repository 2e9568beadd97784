// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/check_path_p.h>
#include <VySmil/model/showntext_p.h>
#include <VySmil/model/vocabulary_p.h>
#include <VySmil/model/vysmilelembase.h>

#include <QHash>

#include <array>

namespace {

using VySmilPrivate::Elem;

// Each child's number among those of its name, or 0 for an only one.
std::vector<int> numbersOfChildren(const VySmilElemBase &elem)
{
    struct Namesakes
    {
        std::size_t first = 0;
        int count = 0;
    };
    std::array<Namesakes, static_cast<std::size_t>(Elem::Unknown)> known;
    QHash<QString, Namesakes> others;
    std::vector<int> numbers;
    numbers.reserve(elem.getSubElementsCount());
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        const QString type = child->getElemType();
        const Elem name = VySmilPrivate::elemOf(type);
        Namesakes &namesakes = name == Elem::Unknown ? others[type] : known[static_cast<std::size_t>(name)];
        if (++namesakes.count == 1)
            namesakes.first = numbers.size();
        else
            numbers[namesakes.first] = 1;
        numbers.push_back(namesakes.count > 1 ? namesakes.count : 0);
    }
    return numbers;
}

} // namespace

namespace VySmilPrivate {

void Path::enter(const VySmilElemBase &elem)
{
    const std::size_t position = m_steps.empty() ? 0 : m_steps.back().entered++;
    m_steps.push_back({&elem, position, 0, {}});
}

QString Path::text()
{
    constexpr std::size_t limit = 16;
    if (m_steps.size() == 1)
        return nameOf(Elem::Smil);
    const std::size_t first = m_steps.size() > limit + 1 ? m_steps.size() - limit : 1;
    QString text;
    text.reserve(64);
    if (first > 1)
        text += QLatin1String(".../");
    for (std::size_t i = first; i < m_steps.size(); ++i) {
        Step &parent = m_steps[i - 1];
        if (parent.childNumbers.empty())
            parent.childNumbers = numbersOfChildren(*parent.elem);
        if (i > first)
            text += u'/';
        appendShown(text, m_steps[i].elem->getElemType());
        if (const int number = parent.childNumbers[m_steps[i].position]; number > 0)
            text += u'[' + QString::number(number) + u']';
    }
    return text;
}

} // namespace VySmilPrivate
