#pragma once

#include "vcl/system/AnsiString.h"

namespace vcl
{

/// Loads a component package by name and makes its classes known to form readers:
///
///     vcl::LoadPackage("KSSuite");
///     vcl::LoadForm(Form, "planner.dfm"); // the form may hold the package's controls now
///
/// The library libNAME.so is looked for in the folders of the environment variable KSSUITE_PACKAGE_PATH
/// (separated by colons), beside this library, and where the system looks. It must define
/// `extern "C" void RegisterNAME()`, which is called once. A package stays loaded to the end of the program.
///
/// Loading it again does nothing. Raises EPackageError, which names the package and the reason; a name that
/// is not an identifier is refused.
void LoadPackage(const AnsiString& Name);

} // namespace vcl
