// SPDX-FileCopyrightText: 2026 the VySmil authors
// SPDX-License-Identifier: MIT

#ifndef VYSMIL_VOCABULARY_P_H
#define VYSMIL_VOCABULARY_P_H

#include <VySmil/vysmil.h>

#include <QString>

#include <algorithm>
#include <initializer_list>

class VySmilElemBase;

namespace VySmilPrivate {

/// Whether \a name is one of \a names, which SMIL_VER_DEFAULT alone knows.
inline bool isKnownAttr(QStringView name, VySmil::SMIL_VERSION version,
                        std::initializer_list<QStringView> names)
{
    return version == VySmil::SMIL_VER_DEFAULT && std::find(names.begin(), names.end(), name) != names.end();
}

/// The checks of reading and writing. A finding goes to \a status unless that is null; the result is
/// RESULT_OK, or in a strict run that of the finding.
int checkElement(const VySmilElemBase &elem, const QString &type, bool strict, VySmil::STATUS_CODE *status,
                 VySmil::SMIL_VERSION version);
int checkAttr(const VySmilElemBase &elem, const QString &name, bool strict, VySmil::STATUS_CODE *status,
              VySmil::SMIL_VERSION version);

/// The string of an attribute name. The names of the vocabulary share a literal each.
QString attributeName(QStringView name);

/// What VySmilElemBase::newElem() gives for \a name.
VySmilElemBase *makeElem(QStringView name);

/// Whether the class of \a elem, whose type name is \a type, is one that newElem() makes, and not one that a
/// client derived.
bool isMadeByFactory(const VySmilElemBase &elem, QStringView type);

} // namespace VySmilPrivate

#endif
