#pragma once

#include <QWidget>

#include <memory>

#include "vcl/qt/EmbeddedForm.h"
#include "vcl/system/Liveness.h"

namespace vcl
{

/// What a program puts into its layout: surroundings of an embedded form.
class TEmbeddingWidget final : public QWidget
{
public:
    explicit TEmbeddingWidget(TWinControl& Control);
    ~TEmbeddingWidget() override;

    QSize sizeHint() const override { return FSizeHint; }
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void focusInEvent(QFocusEvent* Event) override;

private:
    void TakeFont();
    void TakeColors();

    std::unique_ptr<TEmbeddedForm> FForm;
    TWeak<TWinControl> FControl;
    QSize FSizeHint;
};

} // namespace vcl
