#include "vcl/graphics/Bitmap.h"

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Bmp.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Colors.h"
#include "vcl/graphics/RasterPainter.h"
#include "vcl/graphics/Surface.h"
#include "vcl/platform/ImageCodec.h"
#include "vcl/platform/Platform.h"

namespace vcl
{

namespace
{

/// Draws on a bitmap's surface.
class TBitmapCanvas final : public TCanvas
{
public:
    explicit TBitmapCanvas(TBitmap& Bitmap) : FBitmap(Bitmap)
    {
        OnChange = [this](TObject*) { FBitmap.PixelsChanged(); };
    }

    TSurface* GetSurface() override { return &FBitmap.GetSurface(); }
    /// The surface has another size or is another one.
    void Detach()
    {
        SetPainter(nullptr);
        FRaster.reset();
    }

protected:
    void CreateHandle() override
    {
        FRaster = std::make_unique<TRasterPainter>(FBitmap.GetSurface(), &Platform().Text());
        SetPainter(FRaster.get());
    }

private:
    TBitmap& FBitmap;
    std::unique_ptr<TRasterPainter> FRaster;
};

std::vector<std::uint8_t> ReadBytes(TStream& Stream, std::int64_t Count)
{
    std::vector<std::uint8_t> Bytes(static_cast<std::size_t>(Count));
    Stream.ReadBuffer(Bytes.data(), Count);
    return Bytes;
}

/// The picture on white where it is transparent.
std::unique_ptr<TSurface> SurfaceOf(const TDecodedImage& Image)
{
    auto Surface = std::make_unique<TSurface>(Image.Width, Image.Height);
    const std::uint32_t* Source = Image.Pixels.data();
    for (int Y = 0; Y < Image.Height; ++Y) {
        std::uint32_t* const Row = Surface->Row(Y);
        for (int X = 0; X < Image.Width; ++X, ++Source) {
            const std::uint32_t Alpha = *Source >> 24;
            std::uint32_t Pixel = 0xFF;
            for (int Shift = 16; Shift >= 0; Shift -= 8) {
                const std::uint32_t Channel = *Source >> Shift & 0xFF;
                Pixel = Pixel << 8 | (Channel * Alpha + 255 * (255 - Alpha) + 127) / 255;
            }
            Row[X] = Pixel;
        }
    }
    return Surface;
}

TPixelFormat FormatOf(int BitCount)
{
    switch (BitCount) {
    case 1:
        return TPixelFormat::pf1bit;
    case 4:
        return TPixelFormat::pf4bit;
    case 8:
        return TPixelFormat::pf8bit;
    case 16:
        return TPixelFormat::pf16bit;
    case 32:
        return TPixelFormat::pf32bit;
    default:
        return TPixelFormat::pf24bit;
    }
}

} // namespace

const TClass& TBitmap::StaticClass()
{
    static const TClass Class = DefineClass<TBitmap, TGraphic>("TBitmap");
    return Class;
}

TBitmap::TBitmap() : FSurface(std::make_unique<TSurface>())
{
}

TBitmap::TBitmap(int Width, int Height) : FSurface(std::make_unique<TSurface>(Width, Height))
{
}

TBitmap::~TBitmap() = default;

bool TBitmap::GetEmpty() const
{
    return FSurface->GetWidth() == 0 || FSurface->GetHeight() == 0;
}

int TBitmap::GetWidth() const
{
    return FSurface->GetWidth();
}

int TBitmap::GetHeight() const
{
    return FSurface->GetHeight();
}

void TBitmap::SetWidth(int Value)
{
    SetSize(Value, GetHeight());
}

void TBitmap::SetHeight(int Value)
{
    SetSize(GetWidth(), Value);
}

void TBitmap::SetSize(int Width, int Height)
{
    if (Width == GetWidth() && Height == GetHeight())
        return;
    FSurface->Resize(Width, Height);
    DetachCanvas();
    PixelsChanged();
}

void TBitmap::SetPixelFormat(TPixelFormat Value)
{
    if (FPixelFormat == Value)
        return;
    FPixelFormat = Value;
    PixelsChanged();
}

void TBitmap::SetMonochrome(bool Value)
{
    if (Value != GetMonochrome())
        SetPixelFormat(Value ? TPixelFormat::pf1bit : TPixelFormat::pfDevice);
}

TColor TBitmap::GetTransparentColor() const
{
    if (FTransparentColor != clDefault)
        return ColorToRGB(FTransparentColor);
    if (GetEmpty())
        return clWhite;
    return PixelToColor(FSurface->GetPixel({0, GetHeight() - 1}));
}

void TBitmap::SetTransparentColor(TColor Value)
{
    if (FTransparentColor == Value)
        return;
    FTransparentColor = Value;
    FTransparentMode = Value == clDefault ? TTransparentMode::tmAuto : TTransparentMode::tmFixed;
    Changed();
}

void TBitmap::SetTransparentMode(TTransparentMode Value)
{
    if (FTransparentMode != Value)
        SetTransparentColor(Value == TTransparentMode::tmAuto ? clDefault : GetTransparentColor());
}

TCanvas* TBitmap::GetCanvas()
{
    if (!FCanvas)
        FCanvas = std::make_unique<TBitmapCanvas>(*this);
    return FCanvas.get();
}

void TBitmap::DetachCanvas()
{
    if (FCanvas)
        static_cast<TBitmapCanvas&>(*FCanvas).Detach();
}

void TBitmap::PixelsChanged()
{
    FFile.clear();
    Changed();
}

void TBitmap::Take(std::unique_ptr<TSurface> Surface, TPixelFormat Format, std::vector<std::uint8_t> File)
{
    DetachCanvas();
    FSurface = std::move(Surface);
    FPixelFormat = Format;
    FFile = std::move(File);
    Changed();
}

void TBitmap::Assign(const TPersistent* Source)
{
    const TBitmap* const Other = As<TBitmap>(Source);
    if (Source && !Other) {
        TGraphic::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    if (!Other) {
        Clear();
        return;
    }
    FTransparentColor = Other->FTransparentColor;
    FTransparentMode = Other->FTransparentMode;
    CopyTransparent(*Other);
    Take(std::make_unique<TSurface>(*Other->FSurface), Other->FPixelFormat, Other->FFile);
}

void TBitmap::Clear()
{
    if (!GetEmpty() || !FFile.empty())
        Take(std::make_unique<TSurface>(), FPixelFormat, {});
}

void TBitmap::Draw(TCanvas& Canvas, const TRect& Rect)
{
    if (GetEmpty())
        return;
    const TRect Whole{0, 0, GetWidth(), GetHeight()};
    if (GetTransparent())
        Canvas.CopyMasked(Rect, *FSurface, Whole, MakeMask());
    else
        Canvas.CopySurface(Rect, *FSurface, Whole);
}

void TBitmap::LoadFromStream(TStream& Stream)
{
    const std::int64_t Start = Stream.GetPosition();
    const std::int64_t Available = Stream.Remaining();
    if (Available == 0) {
        Clear();
        SetModified(false);
        return;
    }
    const std::vector<std::uint8_t> Head = ReadBytes(Stream, std::min<std::int64_t>(Available, BmpHeadSize));
    Stream.SetPosition(Start);
    if (!IsBmp(Head)) {
        const TDecodedImage Image = Platform().Images().Decode(ReadBytes(Stream, Available));
        Take(SurfaceOf(Image), TPixelFormat::pf32bit, {});
    } else {
        std::vector<std::uint8_t> File = ReadBytes(Stream, BmpFileSize(Head, Available));
        TBmpImage Image = ReadBmp(File);
        Take(std::move(Image.Surface), FormatOf(Image.BitCount), std::move(File));
    }
    SetModified(false);
}

void TBitmap::SaveToStream(TStream& Stream)
{
    if (GetEmpty())
        return;
    const bool IsUnchanged = !FFile.empty();
    const std::vector<std::uint8_t> Encoded =
        IsUnchanged ? std::vector<std::uint8_t>()
                    : WriteBmp(*FSurface, FPixelFormat == TPixelFormat::pf32bit ? 32 : 24);
    const std::vector<std::uint8_t>& File = IsUnchanged ? FFile : Encoded;
    Stream.WriteBuffer(File.data(), static_cast<std::int64_t>(File.size()));
}

void TBitmap::LoadFromResourceName(const AnsiString& ResourceName)
{
    const std::span<const std::uint8_t> Bytes = FindResource(ResourceName);
    TMemoryStream Stream;
    Stream.WriteBuffer(Bytes.data(), static_cast<std::int64_t>(Bytes.size()));
    Stream.SetPosition(0);
    LoadFromStream(Stream);
}

std::vector<std::uint8_t> TBitmap::MakeMask() const
{
    const std::uint32_t Transparent = ColorToPixel(GetTransparentColor());
    const int Width = GetWidth();
    std::vector<std::uint8_t> Mask;
    Mask.reserve(static_cast<std::size_t>(Width) * static_cast<std::size_t>(GetHeight()));
    for (int Y = 0; Y < GetHeight(); ++Y) {
        const std::uint32_t* const Row = FSurface->Row(Y);
        for (int X = 0; X < Width; ++X)
            Mask.push_back((Row[X] & 0xFFFFFF) == Transparent ? 1 : 0);
    }
    return Mask;
}

void TBitmap::ReadData(TStream& Stream)
{
    const std::int32_t Size = Stream.ReadInt32();
    if (Size < 0 || Size > Stream.Remaining())
        throw EInvalidGraphic("Bitmap image is not valid: its length of " + std::to_string(Size) +
                              " bytes is not there");
    TMemoryStream Content;
    if (Size > 0)
        Content.CopyFrom(Stream, Size);
    Content.SetPosition(0);
    LoadFromStream(Content);
}

void TBitmap::WriteData(TStream& Stream)
{
    TMemoryStream Content;
    SaveToStream(Content);
    Stream.WriteInt32(static_cast<std::int32_t>(Content.GetSize()));
    Stream.WriteBuffer(Content.GetMemory(), Content.GetSize());
}

} // namespace vcl
