// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

// compose: makes a message of two slides from nothing and writes it.

#include <VySmil/VySmil>

#include <cstdio>

namespace {

constexpr auto version = VySmil::SMIL_VER_DEFAULT;

// Appends a new element to its parent, which owns it from then on.
template <typename Elem>
Elem *append(VySmilElemBase &parent)
{
    auto *elem = new Elem;
    parent.getSubElements()->append(elem);
    return elem;
}

VySmil::VyLength pixels(int number)
{
    VySmil::VyLength length;
    length.unit = VySmil::UNIT_PIXELS;
    length.value.pixels = number;
    return length;
}

void addRegion(VySmilElemBase &layout, const char *id, int top, int height)
{
    auto *region = append<VySmilElemRegion>(layout);
    region->getCommonAttrsProxy()->setId(id);
    region->setLeft(pixels(0));
    region->setTop(pixels(top));
    region->setWidth(pixels(176));
    region->setHeight(pixels(height));
    region->setFit("meet");
}

VySmilElemPar *addSlide(VySmilElemBase &body, const char *duration)
{
    auto *slide = append<VySmilElemPar>(body);
    // As text: some phones read only whole numbers of seconds or milliseconds, and nothing printed otherwise.
    slide->setAttribute("dur", duration);
    return slide;
}

template <typename Elem>
Elem *addMedia(VySmilElemBase &slide, const char *src)
{
    auto *media = append<Elem>(slide);
    media->getMediaAttrsProxy()->setSrc(src);
    return media;
}

} // namespace

int main()
{
    VySmilElemSmil root;
    auto *layout = append<VySmilElemLayout>(*append<VySmilElemHead>(root));
    auto *picture = append<VySmilElemRootLayout>(*layout);
    picture->setWidth(pixels(176));
    picture->setHeight(pixels(144));
    addRegion(*layout, "Image", 0, 100);
    addRegion(*layout, "Text", 100, 44);

    auto *body = append<VySmilElemBody>(root);
    auto *first = addSlide(*body, "5000ms");
    addMedia<VySmilElemMediaObjImg>(*first, "cid:beach.jpg")->setRegion("Image");
    addMedia<VySmilElemMediaObjText>(*first, "cid:\"sun\" & sea.txt")->setRegion("Text");
    auto *second = addSlide(*body, "3s");
    addMedia<VySmilElemMediaObjText>(*second, "cid:bye.txt")->setRegion("Text");
    addMedia<VySmilElemMediaObjAudio>(*second, "cid:bye.amr");

    QString text;
    const int result = VySmilParser::assemble(&root, text, true, nullptr, version);
    std::fputs(qPrintable(text), stdout);
    return result == VySmil::RESULT_OK ? 0 : 1;
}
