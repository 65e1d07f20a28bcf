#pragma once

#include <KxCore/KxExport.h>

#include <QString>

/// Properties of the product that the module runs in.
class KXCORE_API KxCustomProductInfo
{
public:
    static KxCustomProductInfo* GetInstance();

    /// The product's name as people see it.
    QString KrGetProductName() const;

private:
    KxCustomProductInfo() = default;
};
