#include "vcl/classes/List.h"

namespace vcl
{

void RaiseListIndexError(int Index)
{
    throw EListError("List index out of bounds (" + IntToStr(Index) + ")");
}

void RaiseListCountError(int Count)
{
    throw EListError("List count out of bounds (" + IntToStr(Count) + ")");
}

void RaiseListCapacityError(int Capacity)
{
    throw EListError("List capacity out of bounds (" + IntToStr(Capacity) + ")");
}

} // namespace vcl
