// The program's own resources, beside the forms'.
#pragma once

#define IDI_PROGRAM 1
