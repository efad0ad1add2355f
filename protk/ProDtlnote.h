// Detail notes: the data of a note, its lines and their texts.
#pragma once

#include "ProDwgtable.h"

PRO_BEGIN_C_DECLS

typedef ProModelitem ProDtlsymdef;

typedef struct pro_dtlnotedata* ProDtlnotedata;
typedef struct pro_dtlnoteline* ProDtlnoteline;
typedef struct pro_dtlnotetext* ProDtlnotetext;

typedef enum pro_display_mode { PRODISPMODE_NUMERIC = 0, PRODISPMODE_SYMBOLIC = 1 } ProDisplayMode;

// `symbol` null for a note of the drawing itself. The lines and texts that
// the data hands out belong to it: ProDtlnotedataFree frees them with it.
extern ProError ProDtlnoteDataGet(ProDtlnote* note, ProDtlsymdef* symbol, ProDisplayMode mode,
                                  ProDtlnotedata* notedata);
extern ProError ProDtlnotedataFree(ProDtlnotedata notedata);
// The host allocates the arrays; free them with ProArrayFree.
// PRO_TK_E_NOT_FOUND when there is nothing to collect.
extern ProError ProDtlnotedataLinesCollect(ProDtlnotedata notedata, ProDtlnoteline** lines);
extern ProError ProDtlnotelineTextsCollect(ProDtlnoteline line, ProDtlnotetext** texts);
// ProArray inputs.
extern ProError ProDtlnotelineTextsSet(ProDtlnoteline line, ProDtlnotetext* texts);
extern ProError ProDtlnoteldataLinesSet(ProDtlnotedata notedata, ProDtlnoteline* lines);
extern ProError ProDtlnoteModify(ProDtlnote* note, ProDtlsymdef* symbol, ProDtlnotedata notedata);

extern ProError ProDtlnotetextHeightGet(ProDtlnotetext text, double* height);
extern ProError ProDtlnotetextWidthGet(ProDtlnotetext text, double* width_factor);
extern ProError ProDtlnotetextWidthSet(ProDtlnotetext text, double width_factor);

PRO_END_C_DECLS
