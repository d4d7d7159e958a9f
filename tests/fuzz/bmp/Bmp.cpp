// Pictures and image lists from untrusted bytes: either they are refused, or what was read can be written and
// read again with the same result.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "vcl/classes/Stream.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/Bmp.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/system/Exception.h"

namespace
{

// Larger pictures are allowed, but only cost the fuzzer time.
constexpr std::int64_t LargestTried = 1 << 22;

bool SamePixels(const vcl::TSurface& Left, const vcl::TSurface& Right)
{
    if (Left.GetWidth() != Right.GetWidth() || Left.GetHeight() != Right.GetHeight())
        return false;
    for (int Y = 0; Y < Left.GetHeight(); ++Y) {
        for (int X = 0; X < Left.GetWidth(); ++X) {
            if (Left.Row(Y)[X] != Right.Row(Y)[X])
                return false;
        }
    }
    return true;
}

void TryBitmap(vcl::TMemoryStream& Stream)
{
    vcl::TBitmap Bitmap;
    Bitmap.LoadFromStream(Stream);
    if (std::int64_t{Bitmap.GetWidth()} * Bitmap.GetHeight() > LargestTried || Bitmap.GetEmpty())
        return;
    for (int BitCount : {24, 32}) {
        const vcl::TBmpImage Again = vcl::ReadBmp(vcl::WriteBmp(Bitmap.GetSurface(), BitCount));
        if (!SamePixels(*Again.Surface, Bitmap.GetSurface()))
            std::abort();
    }
}

void TryImageList(vcl::TMemoryStream& Stream)
{
    vcl::TImageList List;
    List.ReadData(Stream);
    const int Count = List.GetCount();
    if (Count == 0 || std::int64_t{List.GetWidth()} * List.GetHeight() * Count > LargestTried)
        return;
    List.Move(0, Count - 1);
    List.Move(Count - 1, 0); // forgets the block that was read
    vcl::TMemoryStream Written;
    List.WriteData(Written);
    Written.SetPosition(0);
    vcl::TImageList Again;
    Again.ReadData(Written);
    if (Again.GetCount() != Count)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    for (const auto Try : {&TryBitmap, &TryImageList}) {
        vcl::TMemoryStream Stream;
        Stream.WriteBuffer(Data, static_cast<std::int64_t>(Size));
        Stream.SetPosition(0);
        try {
            Try(Stream);
        } catch (const vcl::EInvalidGraphic&) {
            // Refused with a reason: what damaged data is for.
        } catch (const vcl::EReadError&) {
        }
    }
    return 0;
}
