#include "vcl/qt/Snapshot.h"

#include <QImage>
#include <QTemporaryDir>

#include "vcl/controls/Button.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/qt/bridge/QtFixture.h"

namespace vcl::tests
{

namespace
{

class TSnapshotTest : public TQtControlTest
{
protected:
    TSnapshotTest() : FProbe(AddProbe())
    {
        FForm->SetColor(TColor(0x00FF00));
        FProbe.SetColor(clWhite);
        FProbe.OnPaintProbe = [](TCanvas& Canvas) {
            Canvas.GetBrush()->SetColor(clRed);
            Canvas.FillRect({10, 10, 20, 20});
        };
    }

    static std::uint32_t At(const TDecodedImage& Image, int X, int Y)
    {
        return Image.Pixels.at(static_cast<std::size_t>(Y) * static_cast<std::size_t>(Image.Width) +
                               static_cast<std::size_t>(X));
    }

    TProbe& FProbe;
};

} // namespace

TEST_F(TSnapshotTest, AHiddenFormIsPicturedWithItsControlsAndStaysHidden)
{
    const TDecodedImage Picture = Snapshot(*FForm);
    EXPECT_EQ(Picture.Width, 400);
    EXPECT_EQ(Picture.Height, 300);
    EXPECT_EQ(At(Picture, 2, 2), 0xFF00FF00u);
    EXPECT_EQ(At(Picture, 12, 22), 0xFFFFFFFFu);
    EXPECT_EQ(At(Picture, 20, 30), 0xFFFF0000u);
    EXPECT_EQ(At(Picture, 30, 40), 0xFFFFFFFFu);
    EXPECT_FALSE(FForm->GetVisible());
}

TEST_F(TSnapshotTest, AtAnotherScaleThePictureIsSharpAndTheScreenUnchanged)
{
    ShowForm();
    for (const double Scale : {1.5, 2.0}) {
        const TDecodedImage Picture = Snapshot(*FForm, Scale);
        EXPECT_EQ(Picture.Width, static_cast<int>(400 * Scale));
        const auto Device = [Scale](int Unit) { return static_cast<int>(std::lround(Unit * Scale)); };
        const int Left = Device(20);
        const int Right = Device(30);
        EXPECT_EQ(At(Picture, Left, Device(35)), 0xFFFF0000u) << Scale;
        EXPECT_EQ(At(Picture, Left - 1, Device(35)), 0xFFFFFFFFu) << Scale;
        EXPECT_EQ(At(Picture, Right - 1, Device(35)), 0xFFFF0000u) << Scale;
        EXPECT_EQ(At(Picture, Right, Device(35)), 0xFFFFFFFFu) << Scale;
    }
    EXPECT_EQ(FProbe.GetWindow()->GetScale(), 1.0);
    EXPECT_EQ(At(Snapshot(*FForm), 20, 30), 0xFFFF0000u);
}

TEST_F(TSnapshotTest, NativeControlsAreInThePicture)
{
    TButton* const Button = New<TButton>(FForm);
    Button->SetBounds(200, 100, 90, 30);
    Button->SetCaption("Press");
    Button->SetParent(FForm);
    const TDecodedImage Picture = Snapshot(*FForm);
    int Different = 0;
    for (int X = 200; X < 290; ++X)
        Different += At(Picture, X, 115) != 0xFF00FF00u ? 1 : 0;
    EXPECT_GT(Different, 60);
}

TEST_F(TSnapshotTest, OneControlCanBePicturedAlone)
{
    const TDecodedImage Picture = Snapshot(FProbe, 2.0);
    EXPECT_EQ(Picture.Width, 200);
    EXPECT_EQ(At(Picture, 20, 20), 0xFFFF0000u);
    EXPECT_EQ(At(Picture, 19, 19), 0xFFFFFFFFu);
}

TEST_F(TSnapshotTest, APictureIsSavedAsPng)
{
    const QTemporaryDir Folder;
    const AnsiString Name = qt::FromQt(Folder.filePath("form.png"));
    SaveSnapshot(*FForm, Name, 2.0);
    const QImage Read(qt::ToQt(Name));
    EXPECT_EQ(Read.size(), QSize(800, 600));
    EXPECT_EQ(Read.pixel(40, 60), 0xFFFF0000u);
    EXPECT_THROW(SaveSnapshot(*FForm, Name + "/nowhere/x.png"), EFCreateError);
}

} // namespace vcl::tests
