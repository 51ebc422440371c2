// SPDX-License-Identifier: MIT
#include "tools/velorx/features/SxfSemantics.h"

#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/formats/SingleNumber.h"

#include <QDate>
#include <QRegularExpression>

namespace velorx {

using namespace VelorExchange::pnr;

namespace {

constexpr int kLargestCode = 0xFFFF;
constexpr qint32 kDateKind = 17;
constexpr qint32 kTypeText = 126;

bool IsClassifierCode(const QString& name)
{
    return name.compare(QLatin1String("CODE"), Qt::CaseInsensitive) == 0
        || name.compare(QLatin1String("CLCODE"), Qt::CaseInsensitive) == 0;
}

// Of a name such as "S_9", "SC_9", "9" or, for one that came again, "S_9_2"; 0 for another name.
int CodeIn(const QString& name)
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("(?:SC?_)?([0-9]{1,5})(?:_[0-9]+)?")),
        QRegularExpression::CaseInsensitiveOption);
    const int code = pattern.match(name).captured(1).toInt();
    return code <= kLargestCode ? code : 0;
}

void SetNumber(PnrSemantic& semantic, qint32 type, const QVariant& value)
{
    semantic.dataType = type;
    semantic.value = value;
}

// Whole numbers beyond 32 bits become real ones.
void SetLongInteger(PnrSemantic& semantic, const QVariant& value)
{
    bool isWhole = false;
    const int number = value.toInt(&isWhole);
    const qlonglong exact = value.toLongLong();
    if (isWhole && number == exact) {
        SetNumber(semantic, sizeof(qint32), number);
    } else {
        SetNumber(semantic, sizeof(double), static_cast<double>(exact));
    }
}

PnrSemantic ToSemantic(int code, const QVariant& value)
{
    PnrSemantic semantic;
    semantic.code = code;
    switch (value.userType()) {
    case QMetaType::Bool:
        SetNumber(semantic, sizeof(qint8), value.toBool() ? 1 : 0);
        break;
    case QMetaType::Short:
        SetNumber(semantic, sizeof(qint16), value.toInt());
        break;
    case QMetaType::Int:
        SetNumber(semantic, sizeof(qint32), value.toInt());
        break;
    case QMetaType::UInt:
    case QMetaType::LongLong:
        SetLongInteger(semantic, value);
        break;
    case QMetaType::Float: // by its own digits and not those of the nearest double
        SetNumber(semantic, sizeof(double), ShortestOf(value.toFloat()).value);
        break;
    case QMetaType::Double:
        SetNumber(semantic, sizeof(double), value);
        break;
    case QMetaType::QDate:
        semantic.semanticType = value.toDate().isValid() ? kDateKind : -1;
        SetNumber(semantic, kTypeText, value);
        break;
    default:
        SetNumber(semantic, kTypeText, value.toString());
    }
    return semantic;
}

} // namespace

void CSxfSemantics::Fill(const SFeature& feature, CBaseObject& object)
{
    object.code = feature.code > 0 ? feature.code : 0;
    if (feature.attributes == nullptr) {
        return;
    }
    for (const SFeatureAttribute& attribute : *feature.attributes) {
        if (!attribute.value.isValid()) {
            continue;
        }
        if (IsClassifierCode(attribute.name) && attribute.value.toInt() > 0) {
            object.code = object.code != 0 ? object.code : attribute.value.toInt();
            continue;
        }
        const int code = CodeOf(attribute.name);
        if (code == 0) {
            tally.Lose(QStringLiteral("attributes for whose names no code is left"), feature.layer);
        } else {
            object.semantics.push_back(ToSemantic(code, attribute.value));
        }
    }
}

int CSxfSemantics::CodeOf(const QString& name)
{
    const auto known = codes.constFind(name);
    if (known != codes.constEnd()) {
        return *known;
    }
    const int told = CodeIn(name);
    const int code = told > 0 ? told : NewCode(name);
    codes.insert(name, code);
    return code;
}

int CSxfSemantics::NewCode(const QString& name)
{
    const int code = kFirstOwnCode + static_cast<int>(ownNames.size());
    if (code > kLastOwnCode) {
        return 0;
    }
    ownNames.push_back(name);
    return code;
}

void CSxfSemantics::Remark() const
{
    for (std::size_t i = 0; i < ownNames.size(); ++i) {
        tally.Remark(QStringLiteral("The attribute %1 has the code %2 on the map.")
                         .arg(ownNames[i])
                         .arg(kFirstOwnCode + static_cast<int>(i)));
    }
}

} // namespace velorx
