#pragma once

#include "vcl/classes/Persistent.h"
#include "vcl/system/Event.h"

namespace vcl
{

class TCanvas;
class TFiler;
class TStream;

/// A picture of some format that can be drawn on a canvas, loaded and saved.
class TGraphic : public TPersistent
{
    VCL_CLASS
public:
    virtual bool GetEmpty() const = 0;
    /// Pixels.
    virtual int GetWidth() const = 0;
    virtual int GetHeight() const = 0;
    virtual void SetWidth(int Value) = 0;
    virtual void SetHeight(int Value) = 0;
    virtual bool GetTransparent() const { return FTransparent; }
    /// Whether drawing leaves out the transparent pixels.
    virtual void SetTransparent(bool Value);
    /// True once something changed since loading; set by Changed.
    bool GetModified() const { return FModified; }
    void SetModified(bool Value);

    /// Draws the whole picture, stretched into Rect.
    virtual void Draw(TCanvas& Canvas, const TRect& Rect) = 0;

    virtual void LoadFromStream(TStream& Stream) = 0;
    virtual void SaveToStream(TStream& Stream) = 0;
    /// Errors of the file raise EFOpenError or EFCreateError; those of its content name the file.
    virtual void LoadFromFile(const AnsiString& FileName);
    virtual void SaveToFile(const AnsiString& FileName);

    /// The binary property "Data", written unless the graphic is empty or the same as the ancestor's.
    void DefineProperties(TFiler& Filer) override;

    /// After each change of size or content.
    TNotifyEvent OnChange;

protected:
    void Changed();
    /// Takes over Transparent without telling of it.
    void CopyTransparent(const TGraphic& Other) { FTransparent = Other.FTransparent; }
    /// The value of the binary property "Data".
    virtual void ReadData(TStream& Stream) = 0;
    virtual void WriteData(TStream& Stream) = 0;

private:
    bool FTransparent = false;
    bool FModified = false;
};

} // namespace vcl
