// The numbers of the program's own resources.
#pragma once

#define IDI_TERMINAL 1
#define IDD_ABOUT 2
#define IDC_ABOUT_VERSION 10
#define IDC_COPY_DIAGNOSTICS 11
