#pragma once

#include <memory>
#include <vector>

#include "vcl/graphics/Graphic.h"
#include "vcl/graphics/Painter.h"
#include "vcl/graphics/Resources.h"

namespace vcl
{

enum class TTransparentMode { tmAuto, tmFixed };

/// The format a bitmap is saved in; in memory it always holds 32-bit pixels.
enum class TPixelFormat { pfDevice, pf1bit, pf4bit, pf8bit, pf15bit, pf16bit, pf24bit, pf32bit };

/// A picture made of pixels, with a canvas to draw on.
///
///     TBitmap Mark;
///     Mark.LoadFromResourceName("FOCUS_BITMAP");
///     Canvas->Draw(X, Y, &Mark);
///
/// It reads BMP files of 1 to 32 bits a pixel, and other formats through the platform. Saved unchanged, a BMP
/// that was loaded comes out byte for byte; otherwise it is written with 24 bits a pixel, or with 32 when
/// PixelFormat is pf32bit.
class TBitmap : public TGraphic
{
    VCL_CLASS
public:
    TBitmap();
    TBitmap(int Width, int Height);
    ~TBitmap() override;

    bool GetEmpty() const override;
    int GetWidth() const override;
    int GetHeight() const override;
    void SetWidth(int Value) override;
    void SetHeight(int Value) override;
    /// Keeps the pixels both sizes share; new ones are white. A size TSurface does not allow raises
    /// EInvalidGraphicOperation.
    void SetSize(int Width, int Height);
    TPixelFormat GetPixelFormat() const { return FPixelFormat; }
    void SetPixelFormat(TPixelFormat Value);
    /// Whether a brush takes the bitmap as a two-colour pattern; the same as PixelFormat pf1bit.
    bool GetMonochrome() const { return FPixelFormat == TPixelFormat::pf1bit; }
    void SetMonochrome(bool Value);
    /// The colour left out by a transparent bitmap: the one set, or with tmAuto that of the bottom left
    /// pixel.
    TColor GetTransparentColor() const;
    /// clDefault returns to tmAuto, any other colour is tmFixed.
    void SetTransparentColor(TColor Value);
    TTransparentMode GetTransparentMode() const { return FTransparentMode; }
    void SetTransparentMode(TTransparentMode Value);
    /// The canvas of the pixels. Drawing on an empty bitmap paints nothing.
    TCanvas* GetCanvas();
    /// The pixels. Whoever writes them calls PixelsChanged afterwards.
    TSurface& GetSurface() { return *FSurface; }
    const TSurface& GetSurface() const { return *FSurface; }
    /// Tells that the pixels were written: the loaded file is forgotten and OnChange raised.
    void PixelsChanged();

    /// Copies another bitmap; null empties this one.
    void Assign(const TPersistent* Source) override;
    /// Releases the pixels: width and height become 0.
    void Clear();
    void Draw(TCanvas& Canvas, const TRect& Rect) override;

    /// Reads one BMP file image (its size stands in its header; the stream is left after it), or the rest of
    /// the stream in a format the platform knows. Raises EInvalidGraphic with the reason, and keeps the
    /// previous picture, when the data is damaged.
    void LoadFromStream(TStream& Stream) override;
    void SaveToStream(TStream& Stream) override;
    /// Loads a bitmap registered with RegisterResource; raises EResNotFound with the name.
    void LoadFromResourceName(const AnsiString& ResourceName);

    /// One byte a pixel, 1 where the colour is TransparentColor.
    std::vector<std::uint8_t> MakeMask() const;

protected:
    void ReadData(TStream& Stream) override;
    void WriteData(TStream& Stream) override;

private:
    void DetachCanvas();
    void Take(std::unique_ptr<TSurface> Surface, TPixelFormat Format, std::vector<std::uint8_t> File);

    std::unique_ptr<TSurface> FSurface;
    std::unique_ptr<TCanvas> FCanvas;
    std::vector<std::uint8_t> FFile; // the file the pixels came from while they are unchanged
    TPixelFormat FPixelFormat = TPixelFormat::pfDevice;
    TTransparentMode FTransparentMode = TTransparentMode::tmAuto;
    TColor FTransparentColor = clDefault;
};

} // namespace vcl
