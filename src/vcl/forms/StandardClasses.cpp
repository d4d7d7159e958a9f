#include "vcl/forms/StandardClasses.h"

#include "vcl/controls/Button.h"
#include "vcl/controls/CheckBox.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Edit.h"
#include "vcl/controls/Label.h"
#include "vcl/controls/ListBox.h"
#include "vcl/controls/ListView.h"
#include "vcl/controls/Menu.h"
#include "vcl/controls/Panel.h"
#include "vcl/controls/SpeedButton.h"
#include "vcl/controls/SpinEdit.h"
#include "vcl/controls/StatusBar.h"
#include "vcl/forms/FileDialog.h"
#include "vcl/forms/Form.h"
#include "vcl/graphics/ImageList.h"

namespace vcl
{

void RegisterStandardClasses()
{
    RegisterClasses({
        &TForm::StaticClass(),
        &TPanel::StaticClass(),
        &TLabel::StaticClass(),
        &TButton::StaticClass(),
        &TSpeedButton::StaticClass(),
        &TEdit::StaticClass(),
        &TCheckBox::StaticClass(),
        &TComboBox::StaticClass(),
        &TSpinEdit::StaticClass(),
        &TListBox::StaticClass(),
        &TListView::StaticClass(),
        &TStatusBar::StaticClass(),
        &TMainMenu::StaticClass(),
        &TPopupMenu::StaticClass(),
        &TMenuItem::StaticClass(),
        &TOpenDialog::StaticClass(),
        &TSaveDialog::StaticClass(),
        &TImageList::StaticClass(),
    });
}

} // namespace vcl
