#pragma once

#include <QLineEdit>
#include <QPointer>

#include "vcl/platform/Messages.h"
#include "vcl/platform/Peers.h"

namespace vcl::qt
{

/// IEditPeer on a line edit, which may be the inner one of a spin box or a combo box.
class TLineEditPeer : public IEditPeer
{
public:
    virtual ~TLineEditPeer() = default;

    /// Edit is null while the peer has none (a combo box that is a choice only).
    void SetLineEdit(QLineEdit* Edit) { FEdit = Edit; }
    QLineEdit* LineEdit() const { return FEdit; }

    void SetSelection(int Start, int Length) override;
    int GetSelStart() const override;
    int GetSelLength() const override;
    void ReplaceSelection(const AnsiString& Text) override;
    void SetReadOnly(bool ReadOnly) override;
    void SetMaxLength(int Length) override;
    /// The platform's own sign is shown whatever Char is.
    void SetPasswordChar(char32_t Char) override;
    void SetAlignment(TTextAlign Alignment) override;
    bool IsModified() const override;
    void SetModified(bool Modified) override;

    /// A character or clipboard command that did not come from the keyboard; false: another message.
    bool EditMessage(const TMessage& Message);

private:
    QPointer<QLineEdit> FEdit;
};

Qt::Alignment AlignmentOf(TTextAlign Align);

} // namespace vcl::qt
