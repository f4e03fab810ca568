#include "TypedElementWrapper.h"

#include "MrUtil.h"

namespace ZefModelRepositoryService {

TypedElementWrapper::TypedElementWrapper(ZefOamSpiDatatypeContainer& container)
    : _container(container), _typeContainer(&container)
{
}

ZefReturnT TypedElementWrapper::setType(ZefOamSpiMrType_3 type)
{
    _container.type = type;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setDerivedDatatype(const ZefOamSpiDerivedDatatype* ddt)
{
    _container.derivedDatatype = ddt;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setEnumDatatype(const ZefOamSpiEnum* enumeration)
{
    _container.enumDatatype = enumeration;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setStructDatatype(const ZefOamSpiStruct* structure)
{
    _container.structDatatype = structure;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setReferencedMoc(const ZefOamSpiMoc* moc)
{
    _container.referencedMoc = moc;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setIsOrdered(bool isOrdered)
{
    _container.isOrdered = isOrdered;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setIsUnique(bool isUnique)
{
    _container.isUnique = isUnique;
    return ZefOk;
}

ZefReturnT TypedElementWrapper::setDefaultValue(const std::string& text)
{
    return MrUtil::setDefaultValueHlp(text, _container);
}

ZefReturnT TypedElementWrapper::setMin(const std::string& text)
{
    return MrUtil::setMinHlp(_container.multiplicityRange, _isMinSet, text);
}

ZefReturnT TypedElementWrapper::setMax(const std::string& text)
{
    return MrUtil::setMaxHlp(_container.multiplicityRange, _isMaxSet, text);
}

} // namespace ZefModelRepositoryService
