#pragma once

#include <memory>
#include <vector>

#include "vcl/classes/Component.h"
#include "vcl/graphics/Painter.h"

namespace vcl
{

class TBitmap;
class TCanvas;
class TCustomImageList;
class TStream;
struct TListImage;

/// How a picture is drawn: blended with BlendColor by a quarter or a half, on the background colour, or
/// without one.
enum class TDrawingStyle { dsFocus, dsSelected, dsNormal, dsTransparent };
/// What is drawn: the picture or its mask.
enum class TImageType { itImage, itMask };

template <>
struct TypeTraits<TDrawingStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TImageType> {
    static const TTypeInfo& Info();
};

/// Hears of the changes of an image list it is registered with. The link unregisters itself when it dies and
/// forgets the list when that dies.
class TChangeLink : public TObject
{
    VCL_CLASS
public:
    ~TChangeLink() override;

    TCustomImageList* GetSender() const { return FSender; }
    /// Listens to List (null: to none) in place of the list it listened to, on behalf of Owner, which is also
    /// told of List's end through Notification. A list that is dying has let go of its links already.
    void Follow(TCustomImageList* List, TComponent& Owner);

    TNotifyEvent OnChange;

private:
    friend class TCustomImageList;
    void Change();

    TCustomImageList* FSender = nullptr;
};

/// A list of pictures of one size, each with a transparency mask.
///
/// In a form file the pictures stand in the binary property "Bitmap", in the classic image-list block: a
/// header
/// ("IL", version 0x101, counts, size, background colour, flags, overlays), the pictures four abreast as a
/// BMP, and the masks likewise with one bit a pixel. A list that was loaded and not changed is written as it
/// was read.
class TCustomImageList : public TComponent
{
    VCL_CLASS
public:
    explicit TCustomImageList(TComponent* Owner = nullptr);
    ~TCustomImageList() override;

    /// Pixels, 16 at first. Another size empties the list; values below 1 are ignored.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value) { SetSize(Value, FHeight); }
    int GetHeight() const { return FHeight; }
    void SetHeight(int Value) { SetSize(FWidth, Value); }
    void SetSize(int Width, int Height);
    int GetCount() const { return static_cast<int>(FImages.size()); }
    /// How many places the list grows by; kept for form files.
    int GetAllocBy() const { return FAllocBy; }
    void SetAllocBy(int Value);
    /// Painted behind each picture; clNone for a transparent background.
    TColor GetBkColor() const { return FBkColor; }
    void SetBkColor(TColor Value);
    TColor GetBlendColor() const { return FBlendColor; }
    void SetBlendColor(TColor Value);
    TDrawingStyle GetDrawingStyle() const { return FDrawingStyle; }
    void SetDrawingStyle(TDrawingStyle Value);
    TImageType GetImageType() const { return FImageType; }
    void SetImageType(TImageType Value);
    /// False: pictures added without a mask colour stay opaque and Mask is ignored.
    bool GetMasked() const { return FMasked; }
    void SetMasked(bool Value);
    bool GetShareImages() const { return FShareImages; }
    void SetShareImages(bool Value) { FShareImages = Value; }

    /// Appends the pictures of Image, cut into strips of Width, and returns the index of the first; -1 when
    /// it is too small for one. Mask (null for none) is white where the picture is transparent.
    int Add(const TBitmap* Image, const TBitmap* Mask);
    /// As Add; pixels of MaskColor are transparent. clDefault takes the bitmap's bottom left pixel.
    int AddMasked(const TBitmap* Image, TColor MaskColor);
    /// Replaces one picture; raises EInvalidOperation "Invalid ImageList Index" for a bad index.
    void Replace(int Index, const TBitmap* Image, const TBitmap* Mask);
    void ReplaceMasked(int Index, const TBitmap* Image, TColor MaskColor);
    void Insert(int Index, const TBitmap* Image, const TBitmap* Mask);
    /// -1 deletes all pictures; another bad index raises EInvalidOperation.
    void Delete(int Index);
    void Clear();
    void Move(int CurIndex, int NewIndex);
    /// Copies one picture on the background colour (black when there is none) into Image.
    void GetBitmap(int Index, TBitmap* Image) const;
    /// Draws a picture; a bad index draws nothing. A disabled one is an embossed shape in the button colours.
    void Draw(TCanvas* Canvas, int X, int Y, int Index, bool Enabled = true) const;

    void RegisterChanges(TChangeLink* Value);
    void UnregisterChanges(TChangeLink* Value);
    /// Between these two, changes are collected into one notification.
    void BeginUpdate() { ++FUpdateCount; }
    void EndUpdate();

    /// Copies size, colours and pictures of another list.
    void Assign(const TPersistent* Source) override;
    void DefineProperties(TFiler& Filer) override;
    /// The block of the form file. Reading raises EReadError or EInvalidGraphic and keeps the previous
    /// pictures when the data is damaged.
    void ReadData(TStream& Stream);
    void WriteData(TStream& Stream) const;

    TNotifyEvent OnChange;

protected:
    /// Tells the links and OnChange.
    virtual void Change();

private:
    using TImages = std::vector<std::unique_ptr<TListImage>>;

    void CheckIndex(int Index) const;
    void CheckImage(const TBitmap* Image) const;
    TImages Cut(const TBitmap* Image, const TBitmap* Mask, TColor MaskColor) const;
    void PicturesChanged();
    void DrawEnabled(TCanvas& Canvas, const TRect& Rect, const TListImage& Image) const;
    void DrawDisabled(TCanvas& Canvas, const TRect& Rect, const TListImage& Image) const;
    template <class T>
    void SetLook(T& Field, T Value);

    TImages FImages;
    std::vector<TChangeLink*> FLinks;
    std::vector<std::uint8_t> FBlock; // as read, while the pictures are unchanged
    int FWidth = 16;
    int FHeight = 16;
    int FAllocBy = 4;
    TColor FBkColor = clNone;
    TColor FBlendColor = clNone;
    TDrawingStyle FDrawingStyle = TDrawingStyle::dsNormal;
    TImageType FImageType = TImageType::itImage;
    bool FMasked = true;
    bool FShareImages = false;
    bool FChanged = false;
    int FUpdateCount = 0;
};

/// The image list that forms hold.
class TImageList : public TCustomImageList
{
    VCL_CLASS
public:
    using TCustomImageList::TCustomImageList;
};

} // namespace vcl
