; A sky and the hills below it. The program gives `kSky`, `kSkyColours` and `kHorizon`, the sky's last
; line.

; The ramp from the zenith to the horizon, its steps blurred by a pattern of 4 by 4 pixels.
DrawSky:
        xor     di, di
        xor     dx, dx                  ; y
.row:   push    dx
        mov     ax, (kSkyColours - 1) * 16
        mul     dx
        mov     bx, kHorizon
        div     bx
        pop     dx
        mov     bp, ax                  ; colour * 16
        mov     bx, dx
        and     bx, 3
        shl     bx, 2
        add     bx, blur_pattern
        xor     cx, cx                  ; x
.pixel: mov     si, cx
        and     si, 3
        movzx   ax, byte [bx + si]
        add     ax, bp
        shr     ax, 4
        add     al, kSky
        stosb
        inc     cx
        cmp     cx, kWidth
        jb      .pixel
        inc     dx
        cmp     dx, kHorizon
        jbe     .row
        ret

; Ridges from the farthest to the nearest. `ridges` of the program, for each: y, stretch of the wave
; (words), its phase, the ripples' phase, colour, brighter on the crest by (bytes), height (word); a y
; of 0 ends them.
kRidgeBytes     equ 10
DrawHills:
        mov     si, ridges
.ridge: xor     cx, cx
.column:
        call    RidgeHeight             ; DX
        mov     bl, [si + 6]
        mov     bh, [si + 7]
        mov     ax, cx
        mov     bp, dx
        add     bp, 2                   ; light on the crest
        add     bl, bh
.pixel: call    PutPixel
        inc     dx
        cmp     dx, bp
        jb      .pixel
        mov     bl, [si + 6]
        add     bp, 12
        cmp     dx, kHeight
        jb      .pixel
        inc     cx
        cmp     cx, kWidth
        jb      .column
        add     si, kRidgeBytes
        cmp     word [si], 0
        jne     .ridge
        ret

; DX = y of the ridge SI at the column CX.
RidgeHeight:
        push    bx
        mov     ax, cx
        imul    ax, [si + 2]
        shr     ax, 6
        add     al, [si + 4]
        call    Sine
        imul    ax, [si + 8]
        sar     ax, 6
        mov     dx, ax
        mov     ax, cx
        imul    ax, 5
        shr     ax, 1
        add     al, [si + 5]
        call    Sine
        sar     ax, 5
        add     dx, ax
        add     dx, [si]
        pop     bx
        ret

; AX = squared distance of CX, DX from SI, DI.
SquaredDistance:
        push    bx
        mov     ax, cx
        sub     ax, si
        imul    ax, ax
        mov     bx, dx
        sub     bx, di
        imul    bx, bx
        add     ax, bx
        pop     bx
        ret

blur_pattern:   db 0, 8, 2, 10
                db 12, 4, 14, 6
                db 3, 11, 1, 9
                db 15, 7, 13, 5
