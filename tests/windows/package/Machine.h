#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// The machine that the installer is tried on: what lies in the user's folders and in the registry.
namespace package {

/// %LOCALAPPDATA% and the like, with what is below it.
std::wstring UserPath(const wchar_t* variable, const std::wstring& below);

/// Runs a program to its end and gives its exit code. Throws driver::DriverError.
DWORD RunToEnd(const std::wstring& program, const std::wstring& arguments);

std::string ReadBytes(const std::wstring& path);
void WriteBytes(const std::wstring& path, const std::string& bytes);
bool Exists(const std::wstring& path);
/// Paths below the folder, each file and each folder, sorted.
std::vector<std::wstring> FilesIn(const std::wstring& folder);
void RemoveTree(const std::wstring& folder);

/// Where a shortcut leads.
std::wstring ShortcutTarget(const std::wstring& path);

/// A text value of the user's registry; "" when there is none.
std::wstring UserValue(const std::wstring& key, const wchar_t* name);
/// A number of the user's registry; 0 when there is none.
DWORD UserNumber(const std::wstring& key, const wchar_t* name);
/// Every key and value below it, one a line, sorted.
std::vector<std::wstring> RegistryBelow(HKEY root, const std::wstring& key);

}  // namespace package
