#pragma once

#define ID_MINIMAL_OK 1001
