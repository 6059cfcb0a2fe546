; Grandmother's house on a winter evening: what stands behind the title, the choice of a yard and the
; help.

kHorizon        equ 128
kField          equ 140                 ; where the snow in front begins

; Draws it into ES.
DrawScenery:
        mov     word [seed_scenery], 1941
        call    DrawSky
        call    DrawHills
        call    DrawField
        mov     si, sprite_house
        mov     ax, 12
        mov     dx, 122
        call    DrawSprite
        mov     bx, pines
.pine:  mov     ax, [bx]
        cmp     ax, -1
        je      .terrace
        mov     dx, [bx + 2]
        mov     si, sprite_pine
        call    DrawSprite
        add     bx, 4
        jmp     .pine
.terrace:
        call    DrawTerrace
        mov     si, sprite_front
        mov     ax, 94
        mov     dx, 156
        jmp     DrawSprite

; Snow, brighter towards the front, with drifts and glitter.
DrawField:
        mov     dx, kField
.row:   xor     ax, ax
.pixel: push    ax
        add     ax, dx
        add     ax, dx
        shl     ax, 1
        call    Sine
        sar     ax, 5                   ; -2 to 2
        mov     cx, ax
        mov     ax, dx
        sub     ax, kField
        shr     ax, 3
        add     cx, ax
        mov     di, seed_scenery
        mov     bx, 40
        call    RandomBelow
        cmp     ax, 3
        ja      .plain
        add     cx, ax
.plain: mov     bx, cx
        add     bl, kSnow + 5
        pop     ax
        call    PutPixel
        inc     ax
        cmp     ax, kWidth
        jb      .pixel
        inc     dx
        cmp     dx, kHeight
        jb      .row
        ret

; Two steps of stone with the crocks on them, the larger ones behind.
DrawTerrace:
        mov     ax, 128
        mov     dx, 158
        mov     cx, 150
        call    DrawStep
        mov     cx, 8
        mov     ax, 132
        mov     dx, 144
        call    DrawCrockRow
        mov     ax, 118
        mov     dx, 177
        mov     cx, 170
        call    DrawStep
        mov     cx, 9
        mov     ax, 126
        mov     dx, 163
        ; fall through

; CX crocks from AX, DX on.
DrawCrockRow:
        mov     si, sprite_crock_snow
        call    DrawSprite
        add     ax, 18
        loop    DrawCrockRow
        ret

; A step of stone with snow on its edge: AX = x, DX = y, CX = width.
DrawStep:
        pusha
        mov     bp, 5
        mov     bl, kSnow + 14
        call    FillRect
        add     dx, 5
        mov     bp, 6
        mov     bl, kStone + 7
        call    FillRect
        mov     di, cx
        mov     bl, kStone + 3
        add     di, ax
.joint: call    PutPixel
        mov     cx, 6
        push    dx
.down:  call    PutPixel
        inc     dx
        loop    .down
        pop     dx
        add     ax, 12
        cmp     ax, di
        jb      .joint
        popa
        ret

; Darkens a rectangle, so that text can be read on it. AX = x, DX = y, CX = width, BP = height.
ShadeRect:
        pusha
        imul    di, dx, kWidth
        add     di, ax
.row:   push    cx
        push    di
.pixel: mov     al, [es:di]
        cmp     al, kSnow
        jb      .sky
        and     al, 0Fh
        shr     al, 2
        add     al, kNight + 1
        jmp     .put
.sky:   sub     al, kSky
        shr     al, 4
        add     al, kNight
.put:   stosb
        loop    .pixel
        pop     di
        pop     cx
        add     di, kWidth
        dec     bp
        jnz     .row
        popa
        ret

; A line around a rectangle: AX = x, DX = y, CX = width, BP = height, BL = colour.
DrawFrame:
        pusha
        push    bp
        mov     bp, 1
        call    FillRect
        pop     bp
        push    dx
        add     dx, bp
        dec     dx
        push    bp
        mov     bp, 1
        call    FillRect
        pop     bp
        pop     dx
        push    cx
        mov     di, cx
        mov     cx, 1
        call    FillRect
        add     ax, di
        dec     ax
        call    FillRect
        pop     cx
        popa
        ret

seed_scenery:   dw 0
pines:          dw 76, 112, -8, 126, 296, 112, 280, 120, 304, 130
                dw -1
ridges:         dw 98, 40
                db 40, 10, kSnow + 2, 5
                dw 16
                dw 116, 55
                db 170, 90, kSnow + 3, 4
                dw 10
                dw 130, 48
                db 100, 30, kSnow + 4, 3
                dw 6
                dw 0
