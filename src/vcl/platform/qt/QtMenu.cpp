#include "vcl/platform/qt/QtMenu.h"

#include <QActionGroup>
#include <QMenuBar>

#include "vcl/platform/Messages.h"
#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtInput.h"
#include "vcl/platform/qt/QtWindow.h"

namespace vcl::qt
{

namespace
{

std::weak_ptr<TWindow> Weakly(TWindow* Window)
{
    return Window ? Window->weak_from_this() : std::weak_ptr<TWindow>();
}

void SendLater(const std::weak_ptr<TWindow>& Weak, unsigned Msg, unsigned Command)
{
    if (const std::shared_ptr<TWindow> Window = Weak.lock())
        Window->Send(Msg, Command);
}

void Describe(QAction& Action, const TMenuSpec::TItem& Item)
{
    Action.setText(ToQt(Item.Caption));
    Action.setEnabled(Item.Enabled);
    Action.setVisible(Item.Visible);
    Action.setData(Item.Command);
    if (const QPixmap Glyph = PixmapOf(Item.Glyph); !Glyph.isNull())
        Action.setIcon(QIcon(Glyph));
}

QMenu* AddSubmenu(QWidget& Owner, const TMenuSpec::TItem& Item, TWindow* Window)
{
    auto* const Menu = new QMenu(&Owner);
    Describe(*Menu->menuAction(), Item);
    FillMenu(*Menu, Item.Items, Window);
    QObject::connect(Menu, &QMenu::aboutToShow, [Weak = Weakly(Window), Command = Item.Command] {
        SendLater(Weak, WM_INITMENUPOPUP, Command);
    });
    return Menu;
}

void AddAction(QWidget& Owner, const TMenuSpec::TItem& Item, TWindow* Window)
{
    auto* const Action = new QAction(&Owner);
    Owner.addAction(Action);
    if (Item.Caption == "-") {
        Action->setSeparator(true);
        Action->setVisible(Item.Visible);
        return;
    }
    Describe(*Action, Item);
    // Shown only: the form itself sees the key first and tells the item.
    Action->setShortcut(ShortCutOf(Item.ShortCut));
    Action->setShortcutContext(Qt::WidgetShortcut);
    // The control decides what a click checks; the menu is made anew then.
    Action->setCheckable(Item.Checked);
    Action->setChecked(Item.Checked);
    if (Item.Radio) {
        auto* const Group = new QActionGroup(Action);
        Group->addAction(Action);
    }
    if (Item.Default) {
        QFont Font = Action->font();
        Font.setBold(true);
        Action->setFont(Font);
    }
    if (Window)
        QObject::connect(Action, &QAction::triggered, [Weak = Weakly(Window), Command = Item.Command] {
            SendLater(Weak, WM_COMMAND, Command);
        });
}

} // namespace

QPixmap PixmapOf(const TPixelBuffer& Buffer)
{
    if (!Buffer.Pixels || Buffer.Width <= 0 || Buffer.Height <= 0)
        return {};
    const QImage Image(reinterpret_cast<const uchar*>(Buffer.Pixels), Buffer.Width, Buffer.Height,
                       static_cast<qsizetype>(Buffer.Stride) * 4, QImage::Format_ARGB32);
    return QPixmap::fromImage(Image.copy());
}

QKeySequence ShortCutOf(std::uint16_t ShortCut)
{
    const int Key = KeyOfVirtualKey(static_cast<std::uint16_t>(ShortCut & 0xFF));
    if (ShortCut == 0 || Key == 0)
        return {};
    Qt::KeyboardModifiers Modifiers;
    Modifiers.setFlag(Qt::ShiftModifier, (ShortCut & scShift) != 0);
    Modifiers.setFlag(Qt::ControlModifier, (ShortCut & scCtrl) != 0);
    Modifiers.setFlag(Qt::AltModifier, (ShortCut & scAlt) != 0);
    return QKeySequence(QKeyCombination(Modifiers, static_cast<Qt::Key>(Key)));
}

void FillMenu(QMenu& Menu, const std::vector<TMenuSpec::TItem>& Items, TWindow* Window)
{
    for (const TMenuSpec::TItem& Item : Items) {
        if (Item.Items.empty())
            AddAction(Menu, Item, Window);
        else
            Menu.addMenu(AddSubmenu(Menu, Item, Window));
        if (Item.Default)
            Menu.setDefaultAction(Menu.actions().constLast());
    }
}

void FillMenuBar(QMenuBar& Bar, const TMenuSpec& Menu, TWindow& Window)
{
    Bar.setNativeMenuBar(false);
    Bar.setLayoutDirection(Menu.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    for (const TMenuSpec::TItem& Item : Menu.Items) {
        if (Item.Items.empty())
            AddAction(Bar, Item, &Window);
        else
            Bar.addMenu(AddSubmenu(Bar, Item, &Window));
    }
}

unsigned RunPopupMenu(const TMenuSpec& Menu, QPoint Screen, TWindow* Window)
{
    const std::shared_ptr<TWindow> Kept = Window ? Window->Keep() : nullptr;
    QMenu Popup;
    Popup.setLayoutDirection(Menu.RightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    for (const TMenuSpec::TItem& Item : Menu.Items) {
        // Chosen commands are the answer here, so the actions themselves tell nobody.
        if (Item.Items.empty())
            AddAction(Popup, Item, nullptr);
        else
            Popup.addMenu(AddSubmenu(Popup, Item, nullptr));
    }
    if (Kept)
        Kept->Send(WM_INITMENUPOPUP);
    const QAction* const Chosen = Popup.exec(Screen);
    return Chosen ? Chosen->data().toUInt() : 0;
}

} // namespace vcl::qt
