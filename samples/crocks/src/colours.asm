; The colours of a winter evening: each ramp of 16 from dark to bright names its darkest colour.

kSky            equ 16                  ; 64 colours from the zenith to the horizon
kSkyColours     equ 64
kSnow           equ 80
kIce            equ 96
kStone          equ 112
kClay           equ 128
kGlow           equ 144                 ; lamplight, gold
kRed            equ 160                 ; the child's coat
kSkin           equ 176
kWood           equ 192
kPine           equ 208
kNight          equ 224                 ; panels and frames
kRamp           equ 16
kWhite          equ kSnow + 15

palette_ramps:
        db      1, 15,  63, 63, 63,  63, 63, 63
        db      kSky, 16,  4, 6, 17,  9, 11, 27
        db      kSky + 16, 16,  9, 11, 28,  20, 19, 38
        db      kSky + 32, 16,  21, 19, 38,  40, 30, 43
        db      kSky + 48, 16,  41, 30, 43,  62, 47, 42
        db      kSnow, 16,  13, 16, 31,  63, 63, 63
        db      kIce, 16,  5, 16, 30,  50, 63, 63
        db      kStone, 16,  5, 6, 11,  47, 47, 50
        db      kClay, 16,  8, 3, 3,  58, 36, 22
        db      kGlow, 16,  20, 9, 3,  63, 60, 32
        db      kRed, 16,  15, 2, 7,  63, 30, 30
        db      kSkin, 16,  22, 11, 8,  63, 53, 43
        db      kWood, 16,  6, 4, 4,  44, 31, 21
        db      kPine, 16,  2, 6, 10,  24, 42, 34
        db      kNight, 16,  2, 3, 8,  34, 38, 52
        db      0, 0
