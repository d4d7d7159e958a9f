#include "vcl/graphics/ImageList.h"

#include <algorithm>

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Canvas.h"
#include "vcl/graphics/Colors.h"
#include "vcl/graphics/ImageListBlock.h"
#include "vcl/streaming/Filer.h"
#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

constexpr int LargestSide = 32767;
constexpr std::uint32_t NoBkColor = 0xFFFFFFFF;
// A disabled picture shows what is darker than this, of 255.
constexpr std::uint32_t EmbossThreshold = 192;

std::uint32_t Luminance(std::uint32_t Pixel)
{
    return ((Pixel >> 16 & 0xFF) * 77 + (Pixel >> 8 & 0xFF) * 150 + (Pixel & 0xFF) * 29) >> 8;
}

std::uint32_t Blended(std::uint32_t Pixel, std::uint32_t Other, std::uint32_t Percent)
{
    std::uint32_t Result = 0xFF;
    for (int Shift = 16; Shift >= 0; Shift -= 8)
        Result = Result << 8 |
                 ((Pixel >> Shift & 0xFF) * (100 - Percent) + (Other >> Shift & 0xFF) * Percent) / 100;
    return Result;
}

std::unique_ptr<TListImage> CutPicture(const TBitmap& Source, int Left, int Width, int Height)
{
    auto Image = std::make_unique<TListImage>();
    Image->Pixels.Resize(Width, Height);
    for (int Y = 0; Y < Height; ++Y)
        std::copy_n(Source.GetSurface().Row(Y) + Left, Width, Image->Pixels.Row(Y));
    Image->Mask.resize(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height));
    return Image;
}

/// Marks transparent what IsTransparent says of the pixels of Source at the picture's place.
template <class TRule>
void MarkMask(TListImage& Image, const TBitmap& Source, int Left, TRule&& IsTransparent)
{
    const int Width = Image.Pixels.GetWidth();
    for (int Y = 0; Y < Image.Pixels.GetHeight(); ++Y) {
        for (int X = 0; X < Width; ++X) {
            const std::uint32_t Pixel = Source.GetSurface().Row(Y)[Left + X] & 0xFFFFFF;
            Image.Mask[static_cast<std::size_t>(Y * Width + X)] = IsTransparent(Pixel) ? 1 : 0;
        }
    }
}

} // namespace

const TTypeInfo& TypeTraits<TDrawingStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TDrawingStyle", {"dsFocus", "dsSelected", "dsNormal", "dsTransparent"});
    return Type;
}

const TTypeInfo& TypeTraits<TImageType>::Info()
{
    static const TTypeInfo Type = EnumerationType("TImageType", {"itImage", "itMask"});
    return Type;
}

const TClass& TChangeLink::StaticClass()
{
    static const TClass Class = DefineClass<TChangeLink, TObject>("TChangeLink");
    return Class;
}

TChangeLink::~TChangeLink()
{
    if (FSender)
        FSender->UnregisterChanges(this);
}

void TChangeLink::Follow(TCustomImageList* List, TComponent& Owner)
{
    if (TCustomImageList* const Old = FSender) {
        Old->UnregisterChanges(this);
        Owner.RemoveFreeNotification(Old);
    }
    if (!List)
        return;
    List->RegisterChanges(this);
    Owner.FreeNotification(List);
}

void TChangeLink::Change()
{
    OnChange(FSender);
}

const TClass& TCustomImageList::StaticClass()
{
    static const TClass Class = DefineClass<TCustomImageList, TComponent>(
        "TCustomImageList",
        {
            Declared(
                Published<&TCustomImageList::GetBlendColor, &TCustomImageList::SetBlendColor>("BlendColor")
                    .Default(clNone)),
            Declared(Published<&TCustomImageList::GetBkColor, &TCustomImageList::SetBkColor>("BkColor")
                         .Default(clNone)),
            Declared(Published<&TCustomImageList::GetAllocBy, &TCustomImageList::SetAllocBy>("AllocBy")
                         .Default(4)),
            Declared(Published<&TCustomImageList::GetDrawingStyle, &TCustomImageList::SetDrawingStyle>(
                         "DrawingStyle")
                         .Default(TDrawingStyle::dsNormal)),
            Declared(
                Published<&TCustomImageList::GetHeight, &TCustomImageList::SetHeight>("Height").Default(16)),
            Declared(Published<&TCustomImageList::GetImageType, &TCustomImageList::SetImageType>("ImageType")
                         .Default(TImageType::itImage)),
            Declared(Published<&TCustomImageList::GetMasked, &TCustomImageList::SetMasked>("Masked").Default(
                true)),
            Declared(Published<&TCustomImageList::OnChange>("OnChange")),
            Declared(
                Published<&TCustomImageList::GetShareImages, &TCustomImageList::SetShareImages>("ShareImages")
                    .Default(false)),
            Declared(
                Published<&TCustomImageList::GetWidth, &TCustomImageList::SetWidth>("Width").Default(16)),
        });
    return Class;
}

const TClass& TImageList::StaticClass()
{
    static const TClass Class = DefineClass<TImageList, TCustomImageList>(
        "TImageList", {Publish("BlendColor"), Publish("BkColor"), Publish("AllocBy"), Publish("DrawingStyle"),
                       Publish("Height"), Publish("ImageType"), Publish("Masked"), Publish("OnChange"),
                       Publish("ShareImages"), Publish("Width")});
    return Class;
}

TCustomImageList::TCustomImageList(TComponent* Owner) : TComponent(Owner)
{
}

TCustomImageList::~TCustomImageList()
{
    for (TChangeLink* Link : FLinks)
        Link->FSender = nullptr;
}

void TCustomImageList::SetSize(int Width, int Height)
{
    if (Width < 1 || Height < 1 || Width > LargestSide || Height > LargestSide ||
        (Width == FWidth && Height == FHeight))
        return;
    FWidth = Width;
    FHeight = Height;
    FImages.clear();
    PicturesChanged();
}

void TCustomImageList::SetAllocBy(int Value)
{
    if (Value > 0)
        FAllocBy = Value;
}

template <class T>
void TCustomImageList::SetLook(T& Field, T Value)
{
    if (Field == Value)
        return;
    Field = Value;
    FBlock.clear(); // some of it stands in there
    Change();
}

void TCustomImageList::SetBkColor(TColor Value)
{
    SetLook(FBkColor, Value);
}

void TCustomImageList::SetBlendColor(TColor Value)
{
    SetLook(FBlendColor, Value);
}

void TCustomImageList::SetDrawingStyle(TDrawingStyle Value)
{
    SetLook(FDrawingStyle, Value);
}

void TCustomImageList::SetImageType(TImageType Value)
{
    SetLook(FImageType, Value);
}

void TCustomImageList::SetMasked(bool Value)
{
    SetLook(FMasked, Value);
}

void TCustomImageList::CheckIndex(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        throw EInvalidOperation("Invalid ImageList Index");
}

void TCustomImageList::CheckImage(const TBitmap* Image) const
{
    if (Image && (Image->GetWidth() < FWidth || Image->GetHeight() < FHeight))
        throw EInvalidOperation("Invalid image size");
}

TCustomImageList::TImages TCustomImageList::Cut(const TBitmap* Image, const TBitmap* Mask,
                                                TColor MaskColor) const
{
    if (!Image)
        throw EInvalidOperation("Invalid image");
    CheckImage(Image);
    CheckImage(Mask);
    const TBitmap* const UsedMask = FMasked ? Mask : nullptr;
    const int Width = UsedMask ? std::min(Image->GetWidth(), Mask->GetWidth()) : Image->GetWidth();
    const std::uint32_t Transparent =
        ColorToPixel(MaskColor == clDefault ? Image->GetTransparentColor() : MaskColor);
    TImages Pictures;
    for (int Left = 0; Left + FWidth <= Width; Left += FWidth) {
        Pictures.push_back(CutPicture(*Image, Left, FWidth, FHeight));
        if (UsedMask)
            MarkMask(*Pictures.back(), *Mask, Left, [](std::uint32_t Pixel) { return Pixel != 0; });
        else if (MaskColor != clNone)
            MarkMask(*Pictures.back(), *Image, Left,
                     [&](std::uint32_t Pixel) { return Pixel == Transparent; });
    }
    return Pictures;
}

int TCustomImageList::Add(const TBitmap* Image, const TBitmap* Mask)
{
    const int First = GetCount();
    TImages Pictures = Cut(Image, Mask, clNone);
    std::move(Pictures.begin(), Pictures.end(), std::back_inserter(FImages));
    PicturesChanged();
    return First;
}

int TCustomImageList::AddMasked(const TBitmap* Image, TColor MaskColor)
{
    const int First = GetCount();
    TImages Pictures = Cut(Image, nullptr, MaskColor);
    std::move(Pictures.begin(), Pictures.end(), std::back_inserter(FImages));
    PicturesChanged();
    return First;
}

void TCustomImageList::Replace(int Index, const TBitmap* Image, const TBitmap* Mask)
{
    CheckIndex(Index);
    FImages[static_cast<std::size_t>(Index)] = std::move(Cut(Image, Mask, clNone).front());
    PicturesChanged();
}

void TCustomImageList::ReplaceMasked(int Index, const TBitmap* Image, TColor MaskColor)
{
    CheckIndex(Index);
    FImages[static_cast<std::size_t>(Index)] = std::move(Cut(Image, nullptr, MaskColor).front());
    PicturesChanged();
}

void TCustomImageList::Insert(int Index, const TBitmap* Image, const TBitmap* Mask)
{
    if (Index != GetCount())
        CheckIndex(Index);
    TImages Pictures = Cut(Image, Mask, clNone);
    FImages.insert(FImages.begin() + Index, std::make_move_iterator(Pictures.begin()),
                   std::make_move_iterator(Pictures.end()));
    PicturesChanged();
}

void TCustomImageList::Delete(int Index)
{
    if (Index == -1) {
        Clear();
        return;
    }
    CheckIndex(Index);
    FImages.erase(FImages.begin() + Index);
    PicturesChanged();
}

void TCustomImageList::Clear()
{
    if (FImages.empty())
        return;
    FImages.clear();
    PicturesChanged();
}

void TCustomImageList::Move(int CurIndex, int NewIndex)
{
    CheckIndex(CurIndex);
    CheckIndex(NewIndex);
    if (CurIndex == NewIndex)
        return;
    const auto Begin = FImages.begin();
    if (CurIndex < NewIndex)
        std::rotate(Begin + CurIndex, Begin + CurIndex + 1, Begin + NewIndex + 1);
    else
        std::rotate(Begin + NewIndex, Begin + CurIndex, Begin + CurIndex + 1);
    PicturesChanged();
}

void TCustomImageList::GetBitmap(int Index, TBitmap* Image) const
{
    CheckIndex(Index);
    Image->SetSize(FWidth, FHeight);
    TCanvas* const Canvas = Image->GetCanvas();
    Canvas->GetBrush()->SetColor(FBkColor == clNone ? clBlack : FBkColor);
    const TRect Rect{0, 0, FWidth, FHeight};
    Canvas->FillRect(Rect);
    const TListImage& Picture = *FImages[static_cast<std::size_t>(Index)];
    Canvas->CopyMasked(Rect, Picture.Pixels, Rect, Picture.Mask);
}

void TCustomImageList::Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled) const
{
    if (Index < 0 || Index >= GetCount())
        return;
    const TRect Rect = Bounds(X, Y, FWidth, FHeight);
    if (Canvas->IsClippedOut(Bounds(X, Y, FWidth + 1, FHeight + 1)))
        return;
    const TListImage& Image = *FImages[static_cast<std::size_t>(Index)];
    if (Enabled)
        DrawEnabled(*Canvas, Rect, Image);
    else
        DrawDisabled(*Canvas, Rect, Image);
}

void TCustomImageList::DrawEnabled(TCanvas& Canvas, const TRect& Rect, const TListImage& Image) const
{
    const TRect Whole{0, 0, FWidth, FHeight};
    TSurface Shown = Image.Pixels;
    std::vector<std::uint8_t> Mask = Image.Mask;
    if (FImageType == TImageType::itMask) {
        for (int Y = 0; Y < FHeight; ++Y) {
            for (int X = 0; X < FWidth; ++X)
                Shown.Row(Y)[X] = Mask[static_cast<std::size_t>(Y * FWidth + X)] ? 0xFFFFFFFF : 0xFF000000;
        }
        std::fill(Mask.begin(), Mask.end(), std::uint8_t{0});
    }
    if (FDrawingStyle == TDrawingStyle::dsFocus || FDrawingStyle == TDrawingStyle::dsSelected) {
        const TColor Color = FBlendColor == clNone || FBlendColor == clDefault ? clHighlight : FBlendColor;
        const std::uint32_t Percent = FDrawingStyle == TDrawingStyle::dsFocus ? 25 : 50;
        for (int Y = 0; Y < FHeight; ++Y) {
            for (int X = 0; X < FWidth; ++X)
                Shown.Row(Y)[X] = Blended(Shown.Row(Y)[X], ColorToPixel(Color), Percent);
        }
    }
    if (FBkColor != clNone && FDrawingStyle != TDrawingStyle::dsTransparent) {
        const TSurface Backed(FWidth, FHeight, 1.0, ColorToPixel(FBkColor));
        Canvas.CopySurface(Rect, Backed, Whole);
    }
    Canvas.CopyMasked(Rect, Shown, Whole, Mask);
}

/// The dark shape of the picture, pressed into the surface: its lit edge below and to the right of its
/// shadow.
void TCustomImageList::DrawDisabled(TCanvas& Canvas, const TRect& Rect, const TListImage& Image) const
{
    const TRect Whole{0, 0, FWidth, FHeight};
    std::vector<std::uint8_t> Shape = Image.Mask;
    for (int Y = 0; Y < FHeight; ++Y) {
        for (int X = 0; X < FWidth; ++X) {
            if (Luminance(Image.Pixels.Row(Y)[X]) >= EmbossThreshold)
                Shape[static_cast<std::size_t>(Y * FWidth + X)] = 1;
        }
    }
    const TSurface Light(FWidth, FHeight, 1.0, ColorToPixel(clBtnHighlight));
    const TSurface Shadow(FWidth, FHeight, 1.0, ColorToPixel(clBtnShadow));
    Canvas.CopyMasked(Bounds(Rect.Left + 1, Rect.Top + 1, FWidth, FHeight), Light, Whole, Shape);
    Canvas.CopyMasked(Rect, Shadow, Whole, Shape);
}

void TCustomImageList::RegisterChanges(TChangeLink* Value)
{
    if (Value->FSender == this)
        return;
    if (Value->FSender)
        Value->FSender->UnregisterChanges(Value);
    Value->FSender = this;
    FLinks.push_back(Value);
}

void TCustomImageList::UnregisterChanges(TChangeLink* Value)
{
    if (std::erase(FLinks, Value) > 0)
        Value->FSender = nullptr;
}

void TCustomImageList::EndUpdate()
{
    if (FUpdateCount > 0 && --FUpdateCount == 0 && FChanged)
        Change();
}

void TCustomImageList::PicturesChanged()
{
    FBlock.clear();
    Change();
}

void TCustomImageList::Change()
{
    FChanged = FUpdateCount > 0;
    if (FChanged)
        return;
    // Handlers may register and unregister links, their own included.
    const std::vector<TChangeLink*> Links = FLinks;
    for (TChangeLink* Link : Links) {
        if (std::find(FLinks.begin(), FLinks.end(), Link) != FLinks.end())
            Link->Change();
    }
    OnChange(this);
}

void TCustomImageList::Assign(const TPersistent* Source)
{
    const auto* const Other = As<TCustomImageList>(Source);
    if (Source && !Other) {
        TComponent::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    if (!Other) {
        Clear();
        return;
    }
    TImages Copies;
    for (const std::unique_ptr<TListImage>& Image : Other->FImages)
        Copies.push_back(std::make_unique<TListImage>(*Image));
    FWidth = Other->FWidth;
    FHeight = Other->FHeight;
    FAllocBy = Other->FAllocBy;
    FBkColor = Other->FBkColor;
    FBlendColor = Other->FBlendColor;
    FMasked = Other->FMasked;
    FImages = std::move(Copies);
    FBlock = Other->FBlock;
    Change();
}

void TCustomImageList::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    const auto HasData = [&] {
        const auto* const Ancestor = As<TCustomImageList>(Filer.GetAncestor());
        if (!Ancestor)
            return GetCount() > 0;
        TMemoryStream Own, Inherited;
        WriteData(Own);
        Ancestor->WriteData(Inherited);
        return Own.GetBytes() != Inherited.GetBytes();
    };
    Filer.DefineBinaryProperty(
        "Bitmap", [this](TStream& Stream) { ReadData(Stream); },
        [this](TStream& Stream) { WriteData(Stream); }, HasData());
}

void TCustomImageList::ReadData(TStream& Stream)
{
    const std::int64_t Start = Stream.GetPosition();
    TImageListBlock Block = ReadImageListBlock(Stream);
    const std::int64_t Length = Stream.GetPosition() - Start;
    std::vector<std::uint8_t> Bytes(static_cast<std::size_t>(Length));
    Stream.SetPosition(Start);
    Stream.ReadBuffer(Bytes.data(), Length);

    FWidth = Block.Width;
    FHeight = Block.Height;
    SetAllocBy(Block.Grow);
    FBkColor =
        Block.BkColor == NoBkColor ? clNone : TColor(static_cast<std::int32_t>(Block.BkColor & 0xFFFFFF));
    FImages.clear();
    for (TListImage& Image : Block.Images)
        FImages.push_back(std::make_unique<TListImage>(std::move(Image)));
    FBlock = std::move(Bytes);
    Change();
}

void TCustomImageList::WriteData(TStream& Stream) const
{
    if (!FBlock.empty()) {
        Stream.WriteBuffer(FBlock.data(), static_cast<std::int64_t>(FBlock.size()));
        return;
    }
    std::vector<const TListImage*> Images;
    for (const std::unique_ptr<TListImage>& Image : FImages)
        Images.push_back(Image.get());
    const std::uint32_t BkColor =
        FBkColor == clNone ? NoBkColor : static_cast<std::uint32_t>(ColorToRGB(FBkColor));
    WriteImageListBlock(Stream, FWidth, FHeight, FAllocBy, BkColor, Images);
}

} // namespace vcl
