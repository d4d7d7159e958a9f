#include "vcl/platform/qt/QtImageCodec.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include <cstring>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/system/Exception.h"

namespace vcl::qt
{

namespace
{

/// A side beyond this is taken for damage: nothing here shows such a picture.
constexpr int MaxSide = 32767;
/// Compressed data may be small for a large even area, but not without end.
constexpr std::int64_t MaxPixelsForAByte = 64 * 1024;
constexpr std::int64_t MaxPixels = std::int64_t{1} << 27;

void CheckSize(QSize Size, std::int64_t ByteCount)
{
    if (!Size.isValid())
        return; // a format that tells only while reading; the reader has its own limit
    const std::int64_t Pixels = std::int64_t{Size.width()} * Size.height();
    if (Size.width() > MaxSide || Size.height() > MaxSide || Pixels > MaxPixels ||
        Pixels > ByteCount * MaxPixelsForAByte)
        throw EInvalidGraphic("Picture size " + IntToStr(Size.width()) + " x " + IntToStr(Size.height()) +
                              " is not possible for " + IntToStr(ByteCount) + " bytes");
}

TDecodedImage FromImage(const QImage& Source)
{
    const QImage Image = Source.convertToFormat(QImage::Format_ARGB32);
    TDecodedImage Result;
    Result.Width = Image.width();
    Result.Height = Image.height();
    Result.Pixels.reserve(static_cast<std::size_t>(Image.width()) * static_cast<std::size_t>(Image.height()));
    for (int Y = 0; Y < Image.height(); ++Y) {
        const auto* Line = reinterpret_cast<const QRgb*>(Image.constScanLine(Y));
        Result.Pixels.insert(Result.Pixels.end(), Line, Line + Image.width());
    }
    return Result;
}

} // namespace

TDecodedImage TImageCodec::Decode(std::span<const std::uint8_t> Bytes)
{
    QByteArray Data = QByteArray::fromRawData(reinterpret_cast<const char*>(Bytes.data()),
                                              static_cast<qsizetype>(Bytes.size()));
    QBuffer Buffer(&Data);
    Buffer.open(QIODevice::ReadOnly);
    QImageReader Reader(&Buffer);
    if (!Reader.canRead())
        throw EInvalidGraphic("Unknown picture format");
    CheckSize(Reader.size(), static_cast<std::int64_t>(Bytes.size()));
    const QImage Image = Reader.read();
    if (Image.isNull())
        throw EInvalidGraphic("Damaged picture: " + FromQt(Reader.errorString()));
    return FromImage(Image);
}

std::vector<std::uint8_t> TImageCodec::Encode(const TDecodedImage& Image, std::string_view Format)
{
    const AnsiString Name(Format);
    if (Image.Width <= 0 || Image.Height <= 0)
        throw EInvalidGraphicOperation("An empty picture cannot be written as \"" + Name + "\"");
    const QImage Source(reinterpret_cast<const uchar*>(Image.Pixels.data()), Image.Width, Image.Height,
                        static_cast<qsizetype>(Image.Width) * 4, QImage::Format_ARGB32);
    QBuffer Buffer;
    Buffer.open(QIODevice::WriteOnly);
    QImageWriter Writer(&Buffer, QByteArray(Name.data(), static_cast<qsizetype>(Name.size())));
    if (!Writer.write(Source))
        throw EInvalidGraphicOperation("Cannot write pictures of format \"" + Name +
                                       "\": " + FromQt(Writer.errorString()));
    const QByteArray& Data = Buffer.data();
    std::vector<std::uint8_t> Result(static_cast<std::size_t>(Data.size()));
    std::memcpy(Result.data(), Data.constData(), Result.size());
    return Result;
}

} // namespace vcl::qt
