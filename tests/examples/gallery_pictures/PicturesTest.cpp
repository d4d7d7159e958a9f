#include <cstdlib>
#include <memory>
#include <ostream>
#include <string>

#include <QApplication>
#include <QStyle>

#include <gtest/gtest.h>

#include "gallery/Icons.h"
#include "gallery/States.h"
#include "package/Package.h"
#include "support/Expected.h"
#include "vcl/classes/Component.h"
#include "vcl/controls/WinControl.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/qt/QtPlatform.h"
#include "vcl/qt/Snapshot.h"

namespace
{

/// Releases of the font rasteriser smooth the edges of glyphs a little differently. What the controls draw
/// themselves, and a glyph in another place, differs by more.
constexpr int AllowedDifference = 40;

constexpr vcl::TSize FormSize{720, 400};

/// How a state is pictured.
struct TView {
    const char* Page;
    const char* State;
    double Scale = 1;
    bool IsDark = false;
};

/// Dark colours until the end of the block.
class TDarkLook
{
public:
    TDarkLook() : FPalette(QApplication::palette()), FStyle(QApplication::style()->objectName())
    {
        vcl::qt::UseDarkLook();
    }
    ~TDarkLook()
    {
        QApplication::setStyle(FStyle);
        QApplication::setPalette(FPalette);
        vcl::Application().ProcessMessages();
    }
    TDarkLook(const TDarkLook&) = delete;
    TDarkLook& operator=(const TDarkLook&) = delete;

private:
    QPalette FPalette;
    QString FStyle;
};

class GalleryPictures : public ::testing::TestWithParam<TView>
{
protected:
    GalleryPictures()
    {
        setenv("LC_ALL", "C", 1); // the names of days
        vcl::qt::UseQt();
        RegisterKSSuite();
        // A blinking caret would make a picture depend on when it is taken.
        QApplication::setCursorFlashTime(0);
    }

    /// The state alone on a form, as the gallery's stage shows it.
    vcl::tests::TPicture Take(const gallery::TState& State, double Scale)
    {
        const std::unique_ptr<vcl::TForm> Form(vcl::New<vcl::TForm>(nullptr));
        Form->SetClientSize(FormSize);
        Form->GetFont()->SetName("Liberation Sans"); // not what the system happens to prefer
        vcl::TImageList* const Icons = vcl::New<vcl::TImageList>(Form.get());
        gallery::MakeIcons(*Icons);
        auto* const Control = vcl::As<vcl::TWinControl>(vcl::FindClass(State.Page).Create(Form.get()));
        Control->SetAlign(State.Width > 0 ? vcl::TAlign::alLeft : vcl::TAlign::alClient);
        if (State.Width > 0)
            Control->SetWidth(State.Width);
        Control->SetTabStop(false); // a state takes the focus itself if it wants it
        Control->SetParent(Form.get());
        gallery::TScene Scene{*Control, *Icons};
        State.Setup(Scene);
        Form->Show();
        vcl::Application().ProcessMessages();
        if (State.Shown)
            State.Shown(Scene);
        vcl::TDecodedImage Image = vcl::Snapshot(*Form, Scale);
        return {Image.Width, Image.Height, std::move(Image.Pixels)};
    }
};

std::string NameOf(const TView& View)
{
    const std::string Scale = View.Scale == 1 ? "" : View.Scale == 2 ? "-2x" : "-1.5x";
    return std::string(View.State) + (View.IsDark ? "-dark" : "") + Scale;
}

void PrintTo(const TView& View, std::ostream* Stream)
{
    *Stream << View.Page << ' ' << NameOf(View);
}

std::vector<TView> AllViews()
{
    std::vector<TView> Views;
    for (const gallery::TState& State : gallery::States())
        Views.push_back({State.Page, State.Name});
    for (const char* const State : {"week", "all-day-rows"}) {
        Views.push_back({"TKSTimeView", State, 2});
        Views.push_back({"TKSTimeView", State, 1, true});
    }
    for (const char* const State : {"images-right", "system-colours"}) {
        Views.push_back({"TKSTreeView", State, 2});
        Views.push_back({"TKSTreeView", State, 1.5});
        Views.push_back({"TKSTreeView", State, 1, true});
    }
    return Views;
}

std::string TestNameOf(const ::testing::TestParamInfo<TView>& Info)
{
    std::string Name = std::string(Info.param.Page) + "_" + NameOf(Info.param);
    for (char& Letter : Name) {
        if (Letter == '-' || Letter == '.')
            Letter = '_';
    }
    return Name;
}

} // namespace

TEST_P(GalleryPictures, LookAsTheyDidWhenSomebodyLooked)
{
    const gallery::TState* const State = gallery::FindState(GetParam().Page, GetParam().State);
    ASSERT_NE(State, nullptr);
    const std::unique_ptr<TDarkLook> Dark = GetParam().IsDark ? std::make_unique<TDarkLook>() : nullptr;
    const std::string Name = "gallery/" + std::string(State->Page) + "/" + NameOf(GetParam()) + ".png";
    EXPECT_TRUE(vcl::tests::MatchesExpected(Name, Take(*State, GetParam().Scale), AllowedDifference));
}

INSTANTIATE_TEST_SUITE_P(, GalleryPictures, ::testing::ValuesIn(AllViews()), TestNameOf);
