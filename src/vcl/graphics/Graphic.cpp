#include "vcl/graphics/Graphic.h"

#include "vcl/classes/Stream.h"
#include "vcl/streaming/Filer.h"

namespace vcl
{

const TClass& TGraphic::StaticClass()
{
    static const TClass Class = DefineClass<TGraphic, TPersistent>("TGraphic");
    return Class;
}

void TGraphic::SetTransparent(bool Value)
{
    if (FTransparent == Value)
        return;
    FTransparent = Value;
    Changed();
}

void TGraphic::SetModified(bool Value)
{
    if (Value)
        Changed();
    else
        FModified = false;
}

void TGraphic::LoadFromFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmOpenRead);
    try {
        LoadFromStream(Stream);
    } catch (const EInvalidGraphic& Error) {
        throw EInvalidGraphic(FileName + ": " + Error.GetMessage());
    }
}

void TGraphic::SaveToFile(const AnsiString& FileName)
{
    TFileStream Stream(FileName, fmCreate);
    SaveToStream(Stream);
}

void TGraphic::DefineProperties(TFiler& Filer)
{
    const auto HasData = [&] {
        const auto* const Ancestor = As<TGraphic>(Filer.GetAncestor());
        if (!Ancestor || Ancestor->ClassType() != ClassType())
            return !GetEmpty();
        TMemoryStream Own, Inherited;
        WriteData(Own);
        const_cast<TGraphic*>(Ancestor)->WriteData(Inherited);
        return Own.GetBytes() != Inherited.GetBytes();
    };
    Filer.DefineBinaryProperty(
        "Data", [this](TStream& Stream) { ReadData(Stream); }, [this](TStream& Stream) { WriteData(Stream); },
        HasData());
}

void TGraphic::Changed()
{
    FModified = true;
    OnChange(this);
}

} // namespace vcl
