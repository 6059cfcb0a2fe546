; The colours of the night.

; Ramps of the palette; each names its darkest colour.
kSky            equ 16                  ; 64 colours from the zenith to the horizon
kSkyColours     equ 64
kHill           equ 80                  ; 16
kSilver         equ 96                  ; 16 each from here on
kGold           equ 112
kBlue           equ 128
kEmber          equ 144
kWood           equ 160
kMoon           equ 176
kRose           equ 192
kGrey           equ 208
kRamp           equ 16
kWhite          equ kSilver + 15

palette_ramps:
        db      1, 15,  63, 63, 63,  63, 63, 63
        db      kSky, 16,  1, 2, 9,  4, 5, 19
        db      kSky + 16, 16,  4, 5, 20,  11, 9, 29
        db      kSky + 32, 16,  12, 9, 30,  26, 15, 36
        db      kSky + 48, 16,  27, 16, 36,  52, 32, 34
        db      kHill, 16,  1, 3, 7,  8, 16, 21
        db      kSilver, 16,  12, 13, 26,  63, 63, 63
        db      kGold, 16,  22, 10, 4,  63, 61, 38
        db      kBlue, 16,  4, 8, 24,  46, 60, 63
        db      kEmber, 16,  14, 2, 3,  63, 36, 12
        db      kWood, 16,  10, 5, 4,  52, 36, 20
        db      kMoon, 16,  34, 31, 30,  63, 62, 52
        db      kRose, 16,  20, 4, 12,  63, 40, 48
        db      kGrey, 16,  6, 7, 14,  50, 52, 60
        db      0, 0
