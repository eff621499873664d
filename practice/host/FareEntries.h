#pragma once

#include "practice/host/Pnr.h"

namespace practice {

// All throw Refused, and may then have changed the PNR: give them a copy.

/// FARE SEK1000,IND F,TAX SEK120XT,TOTAL SEK1120,CALC STO SK CPH,SALES SITI [P1 S2-3]
void CreateTst(Pnr& pnr, std::wstring text);
/// FEE 250,AMOUNT SEK1500,FOP CASH,R TEXT,L 2-3 [P1]
void CreateTsm(Pnr& pnr, std::wstring text);

/// TU 1 PTA/FARE F SEK1000 TAX SEK120XT/C+PD XF SEK10/NVA 15MAR07: the pieces in any order, each
/// once. Gives the number of the TST.
int UpdateTstBy(Pnr& pnr, std::wstring_view entry);

}  // namespace practice
