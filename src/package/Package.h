#pragma once

/// Makes every control of the package known to form readers by name. Loading the package by name calls it; a
/// program that links the package calls it before it reads a form. Calling it again does nothing.
extern "C" void RegisterKSSuite();
