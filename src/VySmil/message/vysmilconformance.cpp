// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#include <VySmil/message/knowntime_p.h>
#include <VySmil/message/layout_p.h>
#include <VySmil/message/mediumkind_p.h>
#include <VySmil/message/partindex_p.h>
#include <VySmil/message/slidewalk_p.h>
#include <VySmil/message/treewalk_p.h>
#include <VySmil/message/vysmilconformance.h>
#include <VySmil/model/vysmilelemsmil.h>

#include <QSet>

#include <algorithm>
#include <tuple>

namespace {

using Severity = std::optional<VySmilFinding::SEVERITY>; // nothing where a level does not mind
constexpr Severity error = VySmilFinding::SEVERITY_ERROR;
constexpr Severity warning = VySmilFinding::SEVERITY_WARNING;
constexpr Severity none = std::nullopt;

bool isInVocabulary(const VySmilElemBase &elem, const QString &type)
{
    return elem.isValidElement(type, VySmil::SMIL_VER_DEFAULT);
}

// Whether the profile lets an element hold another one; both are in the vocabulary, or the child is a "seq".
bool mayHold(const QString &parent, const QString &child)
{
    if (parent == QLatin1String("smil"))
        return child == QLatin1String("head") || child == QLatin1String("body");
    if (parent == QLatin1String("head"))
        return child == QLatin1String("layout") || child == QLatin1String("meta");
    if (parent == QLatin1String("layout"))
        return child == QLatin1String("root-layout") || child == QLatin1String("region");
    if (parent == QLatin1String("body"))
        return child == QLatin1String("par");
    return parent == QLatin1String("par") && VySmilPrivate::kindOfElement(child);
}

bool consistsOfDigits(QStringView text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QStringView withoutEnd(QStringView text, QStringView end)
{
    return text.endsWith(end) ? text.chopped(end.size()) : text;
}

// A name as paths tell it: one that goes on and on stands in the paths of all that is below it.
QString shortened(const QString &name)
{
    constexpr qsizetype shown = 32;
    return name.size() <= shown ? name : name.left(shown) + QStringLiteral("...");
}

// The steps from the root to the element that is looked at.
class Path
{
public:
    void enter(const VySmilElemBase &elem)
    {
        steps.push_back({&elem, steps.empty() ? 0 : steps.back().entered++, 0, {}, {}});
    }
    void leave() { steps.pop_back(); }

    /// How many siblings of a name were counted before this one, which counts from now on.
    int countSibling(const QString &type) { return counts()[type]++; }
    /// How many siblings of a name were counted.
    int siblingsCounted(const QString &type) { return counts().value(type); }

    /// As findings tell it: the last steps alone, so that the paths of a deep tree do not outgrow it.
    QString text();

private:
    struct Step
    {
        const VySmilElemBase *elem;
        std::size_t position;          // among its siblings
        std::size_t entered;           // how many of its children were
        std::vector<int> childNumbers; // made when a finding needs them
        QHash<QString, int> counts;    // of its children by their names, where that matters
    };
    QHash<QString, int> &counts() { return steps[steps.size() - 2].counts; }
    static std::vector<int> numbersOfChildren(const VySmilElemBase &elem);

    std::vector<Step> steps;
};

QString Path::text()
{
    constexpr std::size_t shown = 16;
    if (steps.size() == 1)
        return QStringLiteral("smil");
    const std::size_t first = steps.size() > shown + 1 ? steps.size() - shown : 1;
    QString text = first > 1 ? QStringLiteral("...") : QString();
    for (std::size_t i = first; i < steps.size(); ++i) {
        Step &parent = steps[i - 1];
        if (parent.childNumbers.empty())
            parent.childNumbers = numbersOfChildren(*parent.elem);
        if (!text.isEmpty())
            text += u'/';
        text += shortened(steps[i].elem->getElemType());
        if (const int number = parent.childNumbers[steps[i].position]; number > 0)
            text += u'[' + QString::number(number) + u']';
    }
    // A client may call an element anything; a path is one line.
    std::replace_if(
        text.begin(), text.end(), [](QChar c) { return c < u' '; }, QChar(QChar::ReplacementCharacter));
    return text;
}

// Each child's number among those of its name, or 0 for an only one.
std::vector<int> Path::numbersOfChildren(const VySmilElemBase &elem)
{
    struct Namesakes
    {
        std::size_t first = 0;
        int count = 0;
    };
    QHash<QString, Namesakes> all;
    std::vector<int> numbers;
    for (const VySmilElemBase *child : *elem.getSubElements()) {
        Namesakes &namesakes = all[child->getElemType()];
        if (++namesakes.count == 1)
            namesakes.first = numbers.size();
        else
            numbers[namesakes.first] = 1;
        numbers.push_back(namesakes.count > 1 ? namesakes.count : 0);
    }
    return numbers;
}

class Checker
{
public:
    Checker(const VySmilElemSmil &root, VySmilConformance::CONFORMANCE_LEVEL level,
            const QList<VySmilPart> &partList);

    QList<VySmilFinding> findings;

    void enter(const VySmilElemBase &elem, const VySmilElemBase *parent);
    void leave(const VySmilElemBase &elem);

private:
    void find(VySmilFinding::RULE rule, Severity strict, Severity relaxed, const QString &attribute,
              const QString &message);
    void keepFindings(const VySmilElemBase &elem);

    void checkRoot(const VySmilElemBase &root);
    void checkPlace(const QString &type, const VySmilElemBase &parent);
    void checkAttributeNames(const VySmilElemBase &elem);
    void checkLength(const VySmilElemBase &elem, const QString &name);
    void checkTime(const VySmilElemBase &elem, const QString &name);
    void checkRegion(const VySmilElemBase &region);
    void checkRegionPlace(const VySmilElemBase &region, const QString &from, const QString &size,
                          std::optional<int> whole);
    void checkPar(const VySmilElemBase &par);
    void checkMedium(const VySmilElemBase &medium);
    void checkSlideOf(const VySmilElemBase &medium, VySmilMedium::MEDIUM_KIND kind);

    const bool isStrict;
    const QList<VySmilPart> &parts;
    VySmilPrivate::PartIndex index;

    // What is known of the whole document.
    bool hasSlide;
    QSet<QString> declaredRegions;
    bool hasRegions = false;
    std::optional<int> rootWidth; // of a root layout in pixels
    std::optional<int> rootHeight;
    QSet<const VySmilElemBase *> parsWithoutMedia;

    // What is known when an element is entered.
    Path path;
    QList<VySmilFinding> current;                         // of the element
    QSet<QString> regionIds;                              // of the regions before it
    const VySmilElemBase *slide = nullptr;                // the outermost par around it
    int sorts = 0;                                        // that the media before it in the slide take up
    QHash<QString, const VySmilElemBase *> slideOfRegion; // the last that used it
};

Checker::Checker(const VySmilElemSmil &root, VySmilConformance::CONFORMANCE_LEVEL level,
                 const QList<VySmilPart> &partList)
    : isStrict(level == VySmilConformance::LEVEL_STRICT),
      parts(partList),
      index(partList),
      hasSlide(!VySmilPrivate::slidesOf(root).empty())
{
    const VySmilElemBase *rootLayout = nullptr;
    int media = 0;
    std::vector<std::pair<const VySmilElemBase *, int>> pars; // with the number of media before them
    const auto onEnter = [&](const VySmilElemBase &elem, const VySmilElemBase *) {
        const QString type = elem.getElemType();
        if (type == QLatin1String("region")) {
            hasRegions = true;
            declaredRegions.insert(elem.getAttribute(QStringLiteral("id")));
        } else if (type == QLatin1String("root-layout") && !rootLayout) {
            rootLayout = &elem;
        } else if (type == QLatin1String("par")) {
            pars.emplace_back(&elem, media);
        } else if (VySmilPrivate::kindOfElement(type)) {
            ++media;
        }
        return true;
    };
    const auto onLeave = [&](const VySmilElemBase &elem) {
        if (pars.empty() || pars.back().first != &elem)
            return;
        if (pars.back().second == media)
            parsWithoutMedia.insert(&elem);
        pars.pop_back();
    };
    VySmilPrivate::walkTree(root, onEnter, onLeave);
    declaredRegions.remove(QString());

    const auto pixels = [rootLayout](const QString &name) -> std::optional<int> {
        const auto length = rootLayout ? VySmilPrivate::readLength(*rootLayout, name) : std::nullopt;
        if (!length || length->unit != VySmil::UNIT_PIXELS || length->value.pixels <= 0)
            return std::nullopt;
        return length->value.pixels;
    };
    rootWidth = pixels(QStringLiteral("width"));
    rootHeight = pixels(QStringLiteral("height"));
}

void Checker::find(VySmilFinding::RULE rule, Severity strict, Severity relaxed, const QString &attribute,
                   const QString &message)
{
    if (const Severity severity = isStrict ? strict : relaxed)
        current.append({rule, *severity, nullptr, attribute, QString(), message});
}

void Checker::keepFindings(const VySmilElemBase &elem)
{
    if (current.isEmpty())
        return;
    // Of each rule and attribute the gravest, and of those the first that was found.
    std::stable_sort(current.begin(), current.end(), [](const VySmilFinding &a, const VySmilFinding &b) {
        return std::tie(a.attribute, a.rule, a.severity) < std::tie(b.attribute, b.rule, b.severity);
    });
    const auto isAboutTheSame = [](const VySmilFinding &a, const VySmilFinding &b) {
        return a.attribute == b.attribute && a.rule == b.rule;
    };
    current.erase(std::unique(current.begin(), current.end(), isAboutTheSame), current.end());
    const QString where = path.text();
    for (VySmilFinding &finding : current) {
        finding.elem = &elem;
        finding.path = where;
        findings.append(std::move(finding));
    }
    current.clear();
}

void Checker::enter(const VySmilElemBase &elem, const VySmilElemBase *parent)
{
    path.enter(elem);
    const QString type = elem.getElemType();
    const bool isKnown = isInVocabulary(elem, type);
    if (!slide && type == QLatin1String("par")) {
        slide = &elem;
        sorts = 0;
    }
    if (!parent)
        checkRoot(elem);
    else if (isKnown || type == QLatin1String("seq"))
        checkPlace(type, *parent);
    if (!isKnown) {
        find(VySmilFinding::RULE_VOCABULARY, error, warning, QString(),
             QStringLiteral("is not in the vocabulary"));
        if (isInVocabulary(elem, type.trimmed().toLower()))
            find(VySmilFinding::RULE_LETTER_CASE, error, error, QString(),
                 QStringLiteral("is not in lower case"));
    } else {
        if (isStrict)
            checkAttributeNames(elem);
        if (type == QLatin1String("region")) {
            checkRegion(elem);
        } else if (type == QLatin1String("par")) {
            checkPar(elem);
        } else if (type == QLatin1String("root-layout")) {
            checkLength(elem, QStringLiteral("width"));
            checkLength(elem, QStringLiteral("height"));
        } else if (VySmilPrivate::kindOfElement(type)) {
            checkMedium(elem);
        }
    }
    keepFindings(elem);
}

void Checker::leave(const VySmilElemBase &elem)
{
    path.leave();
    if (slide == &elem)
        slide = nullptr;
}

void Checker::checkRoot(const VySmilElemBase &root)
{
    if (!hasSlide)
        find(VySmilFinding::RULE_STRUCTURE, error, error, QString(), QStringLiteral("has nothing to show"));
    if (root.getSubElementCounts(QStringLiteral("body")) == 0)
        find(VySmilFinding::RULE_STRUCTURE, error, warning, QString(), QStringLiteral("has no body"));
}

// Elements outside of the vocabulary may hold anything, since nobody knows what they are.
void Checker::checkPlace(const QString &type, const VySmilElemBase &parent)
{
    const QString parentType = parent.getElemType();
    if (!isInVocabulary(parent, parentType))
        return;
    const auto misplaced = [this](const QString &message) {
        find(VySmilFinding::RULE_STRUCTURE, error, warning, QString(), message);
    };
    if (!mayHold(parentType, type)) {
        misplaced(QStringLiteral("does not belong into ") + parentType);
        return;
    }
    if (parentType == QLatin1String("body") || parentType == QLatin1String("par") ||
        type == QLatin1String("meta"))
        return;
    const int before = path.countSibling(type);
    if (before >= (type == QLatin1String("region") ? 2 : 1))
        misplaced(QStringLiteral("is one too many"));
    else if (type == QLatin1String("head") && path.siblingsCounted(QStringLiteral("body")) > 0)
        misplaced(QStringLiteral("stands behind the body"));
    else if (type == QLatin1String("root-layout") && path.siblingsCounted(QStringLiteral("region")) > 0)
        misplaced(QStringLiteral("stands behind a region"));
}

void Checker::checkAttributeNames(const VySmilElemBase &elem)
{
    const QMap<QString, QString> attributes = elem.getAttributes();
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        if (!elem.isValidAttr(it.key(), VySmil::SMIL_VER_DEFAULT))
            find(VySmilFinding::RULE_VOCABULARY, warning, none, it.key(),
                 QStringLiteral("is not in the vocabulary"));
    }
}

void Checker::checkLength(const VySmilElemBase &elem, const QString &name)
{
    const QString text = elem.getAttribute(name).trimmed();
    if (text.isEmpty())
        return;
    if (!VySmilPrivate::readLength(elem, name))
        find(VySmilFinding::RULE_VALUE, error, error, name, QStringLiteral("does not read as a length"));
    else if (!consistsOfDigits(withoutEnd(withoutEnd(text, u"%"), u"px")))
        find(VySmilFinding::RULE_VALUE, error, none, name,
             QStringLiteral("is not of the form 50, 50px or 50%"));
}

void Checker::checkTime(const VySmilElemBase &elem, const QString &name)
{
    const QString text = elem.getAttribute(name).trimmed();
    if (text.isEmpty() || (text.endsWith(u"ms") && consistsOfDigits(QStringView(text).chopped(2))))
        return;
    const VySmilPrivate::KnownTime time = VySmilPrivate::knownTime(text);
    const auto wrongForm = [&](Severity strict, Severity relaxed, const QString &message) {
        find(VySmilFinding::RULE_TIME_FORM, strict, relaxed, name, message);
    };
    const auto isInNumber = [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.'; };
    // Left open, a medium ends with its slide.
    const bool isLeftOpen =
        time.isIndefinite && name != QLatin1String("begin") && elem.getElemType() != QLatin1String("par");
    if (!time.isReadable)
        find(VySmilFinding::RULE_VALUE, error, error, name, QStringLiteral("does not read as a time"));
    else if (std::all_of(text.begin(), text.end(), isInNumber))
        wrongForm(error, warning, QStringLiteral("has no unit"));
    else if (consistsOfDigits(withoutEnd(text, u"s")))
        wrongForm(warning, none, QStringLiteral("is in seconds instead of milliseconds"));
    else
        wrongForm(error, time.isKnown || isLeftOpen ? none : warning,
                  QStringLiteral("is not in whole milliseconds"));
}

void Checker::checkRegion(const VySmilElemBase &region)
{
    const QString idName = QStringLiteral("id");
    const QString id = region.getAttribute(idName);
    if (id.isEmpty())
        find(VySmilFinding::RULE_REGION_ID, error, warning, idName, QStringLiteral("is missing"));
    else if (regionIds.contains(id))
        find(VySmilFinding::RULE_REGION_ID, error, warning, idName,
             QStringLiteral("is that of an earlier region"));
    else if (id != QLatin1String("Image") && id != QLatin1String("Text"))
        find(VySmilFinding::RULE_REGION_ID, error, none, idName, QStringLiteral("is neither Image nor Text"));
    regionIds.insert(id);

    bool hasPixels = false;
    bool hasPercent = false;
    for (const QString &name :
         {QStringLiteral("height"), QStringLiteral("left"), QStringLiteral("top"), QStringLiteral("width")}) {
        checkLength(region, name);
        const auto length = VySmilPrivate::readLength(region, name);
        hasPixels = hasPixels || (length && length->unit == VySmil::UNIT_PIXELS && length->value.pixels != 0);
        hasPercent =
            hasPercent || (length && length->unit == VySmil::UNIT_PERCENT && length->value.percent != 0);
    }
    if (hasPixels && hasPercent)
        find(VySmilFinding::RULE_REGION_UNITS, error, none, QString(),
             QStringLiteral("mixes pixels and percent"));
    checkRegionPlace(region, QStringLiteral("left"), QStringLiteral("width"), rootWidth);
    checkRegionPlace(region, QStringLiteral("top"), QStringLiteral("height"), rootHeight);

    const QString fitName = QStringLiteral("fit");
    const QString fit = region.getAttribute(fitName).trimmed();
    static const QStringList fits{QString(),
                                  QStringLiteral("fill"),
                                  QStringLiteral("hidden"),
                                  QStringLiteral("meet"),
                                  QStringLiteral("scroll"),
                                  QStringLiteral("slice")};
    if (!fits.contains(fit))
        find(VySmilFinding::RULE_VALUE, error, none, fitName, QStringLiteral("is not a fit of SMIL"));
}

// In one direction, of which the root layout has whole pixels, if that is known.
void Checker::checkRegionPlace(const VySmilElemBase &region, const QString &from, const QString &size,
                               std::optional<int> whole)
{
    const auto first = VySmilPrivate::readLength(region, from);
    const auto between = VySmilPrivate::readLength(region, size);
    const auto isOf = [](const std::optional<VySmil::VyLength> &length, VySmil::UNIT_KIND unit) {
        return length && length->unit == unit;
    };
    const auto numberOf = [](const std::optional<VySmil::VyLength> &length, double hundredPercent) {
        return length ? VySmilPrivate::numberOf(*length, hundredPercent) : 0.0;
    };
    const auto wrong = [this](const QString &message) {
        find(VySmilFinding::RULE_REGION_PLACE, error, warning, QString(), message);
    };
    if (between && numberOf(between, 100) <= 0) {
        wrong(QStringLiteral("has no size"));
        return;
    }
    // Percent are measured against 100, unless pixels beside them ask for the pixels of the root.
    const bool hasPixels =
        (isOf(first, VySmil::UNIT_PIXELS) && first->value.pixels != 0) || isOf(between, VySmil::UNIT_PIXELS);
    const bool hasPercent = isOf(first, VySmil::UNIT_PERCENT) || isOf(between, VySmil::UNIT_PERCENT);
    if (hasPixels && !whole)
        return;
    const int limit = hasPixels || !hasPercent ? whole.value_or(100) : 100;
    const double start = numberOf(first, limit);
    const double end = between ? start + numberOf(between, limit) : limit;
    if (VySmilPrivate::rounded(start) < 0 || VySmilPrivate::rounded(start) > limit ||
        VySmilPrivate::rounded(end) > limit)
        wrong(QStringLiteral("is not within the root layout"));
    else if (between && VySmilPrivate::rounded(end) == VySmilPrivate::rounded(start))
        wrong(QStringLiteral("has no size"));
}

void Checker::checkPar(const VySmilElemBase &par)
{
    if (parsWithoutMedia.contains(&par))
        find(VySmilFinding::RULE_STRUCTURE, warning, warning, QString(), QStringLiteral("holds no media"));
    const QString name = QStringLiteral("dur");
    const VySmilPrivate::KnownTime dur = VySmilPrivate::knownTime(par.getAttribute(name));
    if (!dur.isKnown || dur.ms <= 0)
        find(VySmilFinding::RULE_DURATION, warning, none, name,
             dur.isThere ? QStringLiteral("is no time above 0") : QStringLiteral("is missing"));
    checkTime(par, name);
}

void Checker::checkMedium(const VySmilElemBase &medium)
{
    for (const QString &name : {QStringLiteral("begin"), QStringLiteral("dur"), QStringLiteral("end")})
        checkTime(medium, name);

    const QString srcName = QStringLiteral("src");
    const QString src = medium.getAttribute(srcName).trimmed();
    const VySmilPrivate::PartIndex::Match match = index.match(src);
    const auto wrongSource = [&](Severity relaxed, const QString &message) {
        find(VySmilFinding::RULE_SOURCE, error, relaxed, srcName, message);
    };
    if (src.isEmpty())
        wrongSource(error, QStringLiteral("is missing"));
    else if (!parts.isEmpty() && match.part < 0)
        wrongSource(error, QStringLiteral("names no part"));
    else if (!VySmilPrivate::isAsciiText(src))
        wrongSource(warning, QStringLiteral("is not ASCII"));
    else if (!parts.isEmpty() && !match.isAlone)
        wrongSource(warning, QStringLiteral("names several parts"));

    const VySmilMedium::MEDIUM_KIND kind = VySmilPrivate::kindOf(medium, parts, match.part);
    const bool isShown = kind == VySmilMedium::MEDIUM_TEXT ||
                         (VySmilPrivate::sortsOf(kind) & VySmilPrivate::SORT_PICTURE) != 0;
    const QString regionName = QStringLiteral("region");
    const QString region = medium.getAttribute(regionName);
    if (isShown && !declaredRegions.contains(region))
        find(VySmilFinding::RULE_REGION_NAME, error, hasRegions ? warning : none, regionName,
             region.isEmpty() ? QStringLiteral("is missing") : QStringLiteral("is not that of a region"));
    if (slide)
        checkSlideOf(medium, kind);
}

// What the media of a slide share.
void Checker::checkSlideOf(const VySmilElemBase &medium, VySmilMedium::MEDIUM_KIND kind)
{
    const int taken = sorts & VySmilPrivate::sortsOf(kind);
    sorts |= VySmilPrivate::sortsOf(kind);
    if (taken != 0) {
        const QString sort = (taken & VySmilPrivate::SORT_PICTURE) != 0 ? QStringLiteral("picture")
                             : (taken & VySmilPrivate::SORT_TEXT) != 0  ? QStringLiteral("text")
                                                                        : QStringLiteral("sound");
        find(VySmilFinding::RULE_MEDIA_COUNT, error, warning, QString(),
             QStringLiteral("is a second %1 in its slide").arg(sort));
    }
    const QString name = QStringLiteral("region");
    const QString region = medium.getAttribute(name);
    if (region.isEmpty() || !medium.isValidAttr(name, VySmil::SMIL_VER_DEFAULT))
        return;
    const VySmilElemBase *&lastSlide = slideOfRegion[region];
    if (lastSlide == slide)
        find(VySmilFinding::RULE_MEDIA_COUNT, error, warning, name,
             QStringLiteral("is used twice in its slide"));
    lastSlide = slide;
}

} // namespace

QList<VySmilFinding> VySmilConformance::check(const VySmilElemSmil &root, CONFORMANCE_LEVEL level,
                                              const QList<VySmilPart> &parts)
{
    Checker checker(root, level, parts);
    const auto enter = [&checker](const VySmilElemBase &elem, const VySmilElemBase *parent) {
        checker.enter(elem, parent);
        return true;
    };
    VySmilPrivate::walkTree(root, enter, [&checker](const VySmilElemBase &elem) { checker.leave(elem); });
    return checker.findings;
}
