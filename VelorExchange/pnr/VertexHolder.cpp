// SPDX-License-Identifier: MIT
#include "VelorExchange/pnr/VertexHolder.h"

namespace VelorExchange::pnr {

CAbstractVertexHolder::~CAbstractVertexHolder() = default;
CVertexHolder2D::~CVertexHolder2D() = default;
CVertexHolder3D::~CVertexHolder3D() = default;

bool CVertexHolder2D::Is2D() const
{
    return true;
}

bool CVertexHolder3D::Is2D() const
{
    return false;
}

} // namespace VelorExchange::pnr
