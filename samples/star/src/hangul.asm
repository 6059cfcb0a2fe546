; The title "Byeol heneun bam" (Counting Stars at Night) in Hangul of our own drawing. A syllable is
; made of bars and of rings.
kTitleX         equ 18
kTitleY         equ 41

DrawHangulTitle:
        mov     word [stroke_growth], 3
        mov     byte [stroke_shading], 0
        mov     byte [stroke_colour], kSky + 2
        call    DrawTitleStrokes
        mov     word [stroke_growth], 1
        mov     byte [stroke_colour], kGold + 1
        call    DrawTitleStrokes
        mov     word [stroke_growth], 0
        mov     byte [stroke_shading], 1
        jmp     DrawTitleStrokes

DrawTitleStrokes:
        mov     si, title_strokes
.next:  lodsw                           ; x / 2, y
        cmp     ax, -1
        je      .done
        movzx   cx, al
        shl     cx, 1
        movzx   dx, ah
        lodsw                           ; width, height; width 0: a ring of this radius
        movzx   bx, al
        movzx   bp, ah
        test    bx, bx
        jz      .ring
        call    DrawBar
        jmp     .next
.ring:  call    DrawRing
        jmp     .next
.done:  ret

; CX = x, DX = y, BX = width, BP = height, grown to all sides by `stroke_growth`.
DrawBar:
        pusha
        mov     ax, [stroke_growth]
        sub     cx, ax
        sub     dx, ax
        shl     ax, 1
        add     bx, ax
        add     bp, ax
        mov     di, cx
        add     di, bx                  ; x behind the bar
        mov     si, dx
        add     si, bp                  ; y behind it
.row:   push    cx
.pixel: call    PutStroke
        inc     cx
        cmp     cx, di
        jb      .pixel
        pop     cx
        inc     dx
        cmp     dx, si
        jb      .row
        popa
        ret

; CX, DX = middle, BP = outer radius. The ring is 6 wide, and grown to both sides.
DrawRing:
        pusha
        mov     [ring_x], cx
        mov     [ring_y], dx
        mov     bx, bp
        add     bx, [stroke_growth]
        mov     ax, bp
        sub     ax, 6
        sub     ax, [stroke_growth]
        imul    ax, ax
        mov     [ring_inner], ax
        mov     ax, bx
        imul    ax, ax
        add     ax, bx
        mov     [ring_outer], ax
        sub     dx, bx
.row:   mov     cx, [ring_x]
        sub     cx, bx
.pixel: mov     si, [ring_x]
        mov     di, [ring_y]
        call    SquaredDistance
        cmp     ax, [ring_outer]
        ja      .skip
        cmp     ax, [ring_inner]
        jb      .skip
        call    PutStroke
.skip:  inc     cx
        mov     ax, cx
        sub     ax, [ring_x]
        cmp     ax, bx
        jle     .pixel
        inc     dx
        mov     ax, dx
        sub     ax, [ring_y]
        cmp     ax, bx
        jle     .row
        popa
        ret

; One pixel of the title at CX, DX, counted from the title's corner.
PutStroke:
        pusha
        mov     bl, [stroke_colour]
        cmp     byte [stroke_shading], 0
        je      .plain
        mov     ax, 68                  ; from bright above to a deeper gold below
        sub     ax, dx
        shr     ax, 3
        add     al, kGold + 7
        mov     bl, al
.plain: mov     ax, cx
        add     ax, kTitleX
        add     dx, kTitleY
        call    PutPixel
        popa
        ret

; x / 2, y, width, height.
title_strokes:
        db      0, 0, 7, 34,  12, 0, 7, 34,  0, 12, 31, 6,  0, 28, 31, 6        ; byeol
        db      25, 0, 7, 36,  18, 8, 14, 6,  18, 21, 14, 6
        db      5, 42, 47, 5,  25, 42, 7, 15,  5, 52, 47, 5,  5, 52, 7, 15,  5, 62, 47, 5
        db      44, 2, 14, 6,  40, 13, 30, 6,  47, 38, 0, 15                    ; he
        db      54, 34, 12, 6,  59, 4, 7, 60,  66, 0, 7, 67
        db      79, 2, 7, 20,  79, 16, 46, 7,  75, 32, 62, 7                    ; neun
        db      79, 47, 7, 20,  79, 60, 46, 7
        db      114, 0, 7, 34,  126, 0, 7, 34,  114, 12, 31, 6,  114, 28, 31, 6 ; bam
        db      133, 0, 7, 38,  136, 15, 12, 6
        db      118, 43, 38, 6,  118, 61, 38, 6,  118, 43, 7, 24,  133, 43, 7, 24
        dw      -1
