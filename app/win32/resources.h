// The program's own resources, beside the forms'.
#pragma once

#define IDI_PROGRAM 1
#define IDR_ORDINARY_BOOKING 2
