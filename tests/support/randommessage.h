// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_TESTS_RANDOMMESSAGE_H
#define VYSMIL_TESTS_RANDOMMESSAGE_H

#include <VySmil/VySmil>

#include <QRandomGenerator>

/// Makes messages by chance: the less rarity, the more as the profile has them.
class RandomMessage
{
public:
    explicit RandomMessage(quint32 seed) : m_random(seed) {}

    int below(int count) { return m_random.bounded(count); }

    template <std::size_t N>
    QString oneOf(const char *const (&texts)[N])
    {
        return QString::fromUtf8(texts[below(int(N))]);
    }

    QString name()
    {
        static const char *const texts[] = {
            "",       "a.jpg",     "A.JPG", "b.txt", "./b.txt", "c%20d", "c d", "é.gif", "e",     "E",    "É",
            "%c3%a9", "cid:a.jpg", "%",     "<e>",   "-",       " e ",   "%45", "e%",    "part1", "part2"};
        return oneOf(texts);
    }

    /// Any tree below \a elem.
    void grow(VySmilElemBase &elem, int depth)
    {
        static const char *const names[] = {"body", "body",   "par",    "par",         "par", "seq",
                                            "img",  "img",    "text",   "audio",       "ref", "video",
                                            "seq",  "region", "region", "root-layout", "Par", "excl",
                                            "head", "layout", "switch", "param",       "meta"};
        decorate(elem, 1);
        for (int i = depth > 0 ? below(5) : 0; i > 0; --i)
            grow(*child(elem, oneOf(names)), depth - 1);
    }

    /// A document of slides, in which one of \a rarity attributes is odd.
    void fill(VySmilElemSmil &root, int rarity)
    {
        VySmilElemBase *layout = child(*child(root, "head"), "layout");
        VySmilElemBase *rootLayout = child(*layout, "root-layout");
        const bool inPercent = below(2) == 0;
        if (below(3) > 0) {
            rootLayout->setAttribute("width", "200");
            rootLayout->setAttribute("height", oneOf({"100", "99", "7"}));
        }
        static const char *const ids[] = {"Image", "Text"};
        for (int i = below(3); i > 0; --i) {
            VySmilElemBase *region = child(*layout, "region");
            region->setAttribute("id", ids[i - 1]);
            static const char *const attributes[] = {"left", "top", "width", "height"};
            for (const char *attribute : attributes) {
                if (below(2) == 0)
                    region->setAttribute(attribute, inPercent ? oneOf({"33%", "50%", "7%", "1%"})
                                                              : oneOf({"3", "17", "50", "1"}));
            }
            if (below(2) == 0)
                region->setAttribute("fit", oneOf({"fill", "slice", "meet", "scroll", "hidden"}));
            decorate(*region, rarity);
        }
        decorate(*rootLayout, rarity);
        VySmilElemBase *body = child(root, "body");
        for (int i = below(4); i >= 0; --i) {
            VySmilElemBase *par = child(*body, rarity > 1 && below(rarity) == 0 ? "seq" : "par");
            par->setAttribute("dur", oneOf({"5000ms", "900ms", "7s", "1ms"}));
            decorate(*par, rarity);
            fillSlide(*par, rarity);
        }
    }

    QList<VySmilPart> parts(int most)
    {
        static const char *const types[] = {"image/jpeg",      "image/gif",
                                            "text/plain",      "audio/amr",
                                            "video/3gpp",      "TEXT/plain; charset=utf-8",
                                            "text/x-vcard",    "application/smil",
                                            "application/pdf", ""};
        QList<VySmilPart> parts;
        for (int i = below(most + 1); i > 0; --i) {
            VySmilPart part;
            part.contentId = name();
            part.contentLocation = name();
            part.name = name();
            part.contentType = oneOf(types);
            part.durationMs = below(12'000) - 4'000;
            parts << part;
        }
        return parts;
    }

private:
    static VySmilElemBase *child(VySmilElemBase &parent, const QString &name)
    {
        VySmilElemBase *elem = VySmilElemBase::newElem(name);
        parent.getSubElements()->append(elem);
        return elem;
    }

    template <std::size_t N>
    QString oneOf(const char *const (&&texts)[N])
    {
        return oneOf(texts);
    }

    void fillSlide(VySmilElemBase &par, int rarity)
    {
        static const char *const types[] = {"img", "text", "audio", "video", "ref"};
        static const char *const files[] = {"a.jpg", "b.txt", "e", "E", "cid:a.jpg", "c%20d"};
        for (int i = below(4); i > 0; --i) {
            VySmilElemBase *medium = child(par, oneOf(types));
            medium->setAttribute("src", oneOf(files));
            if (below(3) > 0 && medium->getElemType() != "audio")
                medium->setAttribute("region", medium->getElemType() == "text" ? "Text" : "Image");
            if (below(3) == 0)
                medium->setAttribute(oneOf({"begin", "end", "alt"}), oneOf({"300ms", "1000ms", "2s", "0ms"}));
            if (below(4) == 0 && medium->getElemType() != "ref")
                medium->setAttribute("dur", oneOf({"300ms", "1000ms", "0ms"}));
            decorate(*medium, rarity);
        }
    }

    /// Sets one of \a rarity attributes to anything.
    void decorate(VySmilElemBase &elem, int rarity)
    {
        static const char *const times[] = {"",       "5000ms", "5",          "2s",     "-1s",  "0",
                                            "00:07",  "900ms",  "indefinite", "media",  "soon", "3.5s",
                                            "99999h", "id.end", "1ms",        "2100ms", "1.5",  "+1s"};
        static const char *const lengths[] = {"",    "0",   "10",   "33.3%", "50%",    "100%", "99.6%",
                                              "120", "-20", "12px", "wide",  "999999", "0%"};
        static const char *const regions[] = {"", "Image", "Text", "text", "Top", "IMAGE", " "};
        static const char *const fits[] = {"", "fill", "MEET", " slice ", "odd"};
        static const char *const colors[] = {"", "red", "#fff", "transparent", "noColor", "rgb(1,2,3)", "5"};
        const auto set = [&](const char *name, const QString &value) {
            if (!value.isEmpty() && below(rarity) == 0)
                elem.setAttribute(name, value);
        };
        for (const char *name : {"begin", "end", "dur"})
            set(name, oneOf(times));
        for (const char *name : {"left", "top", "width", "height"})
            set(name, oneOf(lengths));
        for (const char *name : {"id", "region"})
            set(name, oneOf(regions));
        set("fit", oneOf(fits));
        set("background-color", oneOf(colors));
        set("src", name());
        set("name", "foreground-color");
        set("value", oneOf(colors));
    }

    QRandomGenerator m_random;
};

#endif
