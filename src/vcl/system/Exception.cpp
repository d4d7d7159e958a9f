#include "vcl/system/Exception.h"

#include <utility>

namespace vcl
{

Exception::Exception(AnsiString Message) : FMessage(std::move(Message))
{
}

// Out of line, one each, so that every exception class has one exported home and is caught across libraries.
Exception::~Exception() = default;
EAbort::~EAbort() = default;
EConvertError::~EConvertError() = default;
EStreamError::~EStreamError() = default;
EFileStreamError::~EFileStreamError() = default;
EFCreateError::~EFCreateError() = default;
EFOpenError::~EFOpenError() = default;
EFilerError::~EFilerError() = default;
EReadError::~EReadError() = default;
EWriteError::~EWriteError() = default;
EClassNotFound::~EClassNotFound() = default;
EInvalidImage::~EInvalidImage() = default;
EResNotFound::~EResNotFound() = default;
EListError::~EListError() = default;
EStringListError::~EStringListError() = default;
EParserError::~EParserError() = default;
EComponentError::~EComponentError() = default;
EInvalidOperation::~EInvalidOperation() = default;
EInvalidGraphic::~EInvalidGraphic() = default;
EInvalidGraphicOperation::~EInvalidGraphicOperation() = default;
EPropertyError::~EPropertyError() = default;
EPackageError::~EPackageError() = default;

} // namespace vcl
