#include <KxCore/KxCustomProductInfo.h>

KxCustomProductInfo* KxCustomProductInfo::GetInstance()
{
    static KxCustomProductInfo info;
    return &info;
}

QString KxCustomProductInfo::KrGetProductName() const
{
    return QStringLiteral("Auto Reframe");
}
