// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// edit: reads a message, changes it through typed accessors, and writes it back.

#include "../readtext.h"

#include <VySmil/VySmil>

#include <cstdio>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

// The first element called name under root, depth first, or null.
template <typename Elem>
Elem *find(VySmilElemBase &root, const QString &name)
{
    for (VySmilElemBase *child : *root.getSubElements()) {
        if (child->getElemType() == name)
            return dynamic_cast<Elem *>(child);
        if (auto *found = find<Elem>(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    QString error;
    const auto text = readText(QString::fromLocal8Bit(argc > 1 ? argv[1] : "-"), error);
    VySmilElemSmil root;
    if (!text || VySmilParser::parse(*text, &root, false, nullptr, version) != VySmil::RESULT_OK) {
        std::fputs("edit: the message cannot be read\n", stderr);
        return 1;
    }

    // The first region gets half of the width.
    if (auto *region = find<VySmilElemRegion>(root, QStringLiteral("region"))) {
        VySmil::VyLength half;
        half.unit = VySmil::UNIT_PERCENT;
        half.value.percent = 50;
        region->setWidth(half);
    }

    // The first picture is shown half a second later.
    if (auto *picture = find<VySmilElemMediaObjImg>(root, QStringLiteral("img"))) {
        VySmil::VyTime begin;
        begin.fromString(QStringLiteral("0.5s"));
        picture->getTimingAttrsProxy()->setBegin(begin);
    }

    // The first slide gets a text.
    if (auto *slide = find<VySmilElemPar>(root, QStringLiteral("par"))) {
        auto *added = static_cast<VySmilElemMediaObjText *>(VySmilElemBase::newElem(QStringLiteral("text")));
        added->getMediaAttrsProxy()->setSrc(QStringLiteral("cid:you&me.txt"));
        slide->getSubElements()->append(added);
    }

    QString written;
    VySmilParser::assemble(&root, written, false, nullptr, version);
    std::fputs(qPrintable(written), stdout);
    return 0;
}
