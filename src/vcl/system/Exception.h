#pragma once

#include <exception>

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// The general exception of the component model; what() is the message shown to the user.
class Exception : public std::exception
{
public:
    explicit Exception(AnsiString Message);
    ~Exception() override;

    const char* what() const noexcept override { return FMessage.c_str(); }
    const AnsiString& GetMessage() const { return FMessage; }
    /// The class's name as the component model spells it, for messages and tests ("EReadError").
    virtual const char* ClassName() const noexcept { return "Exception"; }

private:
    AnsiString FMessage;
};

/// Declares an exception class that differs from its ancestor only in identity.
#define VCL_EXCEPTION(NAME, ANCESTOR)                                                                        \
    class NAME : public ANCESTOR                                                                             \
    {                                                                                                        \
    public:                                                                                                  \
        using ANCESTOR::ANCESTOR;                                                                            \
        ~NAME() override;                                                                                    \
        const char* ClassName() const noexcept override { return #NAME; }                                    \
    }

VCL_EXCEPTION(EAbort, Exception);
VCL_EXCEPTION(EConvertError, Exception);
VCL_EXCEPTION(EStreamError, Exception);
VCL_EXCEPTION(EFileStreamError, EStreamError);
VCL_EXCEPTION(EFCreateError, EFileStreamError);
VCL_EXCEPTION(EFOpenError, EFileStreamError);
VCL_EXCEPTION(EFilerError, EStreamError);
VCL_EXCEPTION(EReadError, EFilerError);
VCL_EXCEPTION(EWriteError, EFilerError);
VCL_EXCEPTION(EClassNotFound, EFilerError);
VCL_EXCEPTION(EInvalidImage, EFilerError);
VCL_EXCEPTION(EResNotFound, Exception);
VCL_EXCEPTION(EListError, Exception);
VCL_EXCEPTION(EStringListError, EListError);
VCL_EXCEPTION(EParserError, Exception);
VCL_EXCEPTION(EComponentError, Exception);
VCL_EXCEPTION(EInvalidOperation, Exception);
VCL_EXCEPTION(EInvalidGraphic, Exception);
VCL_EXCEPTION(EInvalidGraphicOperation, Exception);
VCL_EXCEPTION(EPropertyError, Exception);
VCL_EXCEPTION(EPackageError, Exception);

} // namespace vcl
