; The palette: ramps of colours from dark to bright, and the light over all of them.

kPaletteBytes   equ 256 * 3
kFullLight      equ 32                  ; 0 is black

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

; Fills `palette` from the ramps.
BuildPalette:
        push    es
        push    ds
        pop     es
        mov     si, palette_ramps
.ramp:  movzx   di, byte [si]           ; first colour
        movzx   cx, byte [si + 1]       ; count, 0 ends the table
        jcxz    .done
        imul    di, di, 3
        add     di, palette
        xor     bp, bp                  ; place on the ramp
.colour:
        xor     bx, bx                  ; red, green, blue
.part:  movzx   ax, byte [si + bx + 5]
        movzx   dx, byte [si + bx + 2]
        sub     ax, dx
        imul    bp
        push    cx
        movzx   cx, byte [si + 1]
        dec     cx
        idiv    cx
        pop     cx
        add     al, [si + bx + 2]
        stosb
        inc     bx
        cmp     bx, 3
        jb      .part
        inc     bp
        loop    .colour
        add     si, 8
        jmp     .ramp
.done:  pop     es
        ret

; Puts the palette at the light AX, 0 (black) to kFullLight.
SetLight:
        pusha
        mov     bx, ax
        mov     dx, 3C8h
        xor     al, al
        out     dx, al
        inc     dx
        mov     si, palette
        mov     cx, kPaletteBytes
.next:  lodsb
        mul     bl
        shr     ax, 5
        out     dx, al
        loop    .next
        popa
        ret

FadeIn:
        mov     bx, 0
.next:  call    WaitRetrace
        mov     ax, bx
        call    SetLight
        add     bx, 2
        cmp     bx, kFullLight
        jbe     .next
        ret

FadeOut:
        mov     bx, kFullLight
.next:  call    WaitRetrace
        mov     ax, bx
        call    SetLight
        sub     bx, 2
        jns     .next
        ret

; First colour, count, then red, green and blue of the first and of the last colour, 0 to 63.
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
