#include "vcl/forms/FormExtras.h"

#include "vcl/classes/Stream.h"
#include "vcl/streaming/Filer.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TDefaultMonitor>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TDefaultMonitor", {"dmDesktop", "dmPrimary", "dmMainForm", "dmActiveForm"});
    return Type;
}

const TTypeInfo& TypeTraits<TPrintScale>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TPrintScale", {"poNone", "poProportional", "poPrintToFit"});
    return Type;
}

const TClass& TControlScrollBar::StaticClass()
{
    using T = TControlScrollBar;
    static const TClass Class = DefineClass<TControlScrollBar, TPersistent>(
        "TControlScrollBar", {
                                 Published<&T::GetIncrement, &T::SetIncrement>("Increment").Default(8),
                                 Published<&T::GetMargin, &T::SetMargin>("Margin").Default(0),
                                 Published<&T::GetPosition, &T::SetPosition>("Position").Default(0),
                                 Published<&T::GetRange, &T::SetRange>("Range").Default(0),
                                 Published<&T::GetSmooth, &T::SetSmooth>("Smooth").Default(false),
                                 Published<&T::GetTracking, &T::SetTracking>("Tracking").Default(false),
                                 Published<&T::GetVisible, &T::SetVisible>("Visible").Default(true),
                             });
    return Class;
}

void TControlScrollBar::Assign(const TPersistent* Source)
{
    const TControlScrollBar* const Other = As<TControlScrollBar>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    FIncrement = Other->FIncrement;
    FMargin = Other->FMargin;
    FPosition = Other->FPosition;
    FRange = Other->FRange;
    FSmooth = Other->FSmooth;
    FTracking = Other->FTracking;
    FVisible = Other->FVisible;
}

const TClass& TIcon::StaticClass()
{
    static const TClass Class = DefineClass<TIcon, TPersistent>("TIcon");
    return Class;
}

void TIcon::Assign(const TPersistent* Source)
{
    if (const TIcon* const Other = As<TIcon>(Source))
        FBytes = Other->FBytes;
    else if (!Source)
        FBytes.clear();
    else
        TPersistent::Assign(Source);
}

void TIcon::DefineProperties(TFiler& Filer)
{
    const TIcon* const Ancestor = As<TIcon>(Filer.GetAncestor());
    Filer.DefineBinaryProperty(
        "Data",
        [this](TStream& Stream) {
            FBytes.resize(static_cast<std::size_t>(Stream.GetSize() - Stream.GetPosition()));
            Stream.ReadBuffer(FBytes.data(), static_cast<std::int64_t>(FBytes.size()));
        },
        [this](TStream& Stream) {
            Stream.WriteBuffer(FBytes.data(), static_cast<std::int64_t>(FBytes.size()));
        },
        Ancestor ? FBytes != Ancestor->FBytes : !FBytes.empty());
}

} // namespace vcl
