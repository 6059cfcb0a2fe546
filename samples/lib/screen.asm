; Screen: VGA mode 13h, 320 by 200 in 256 colours. Nothing is drawn on the visible screen itself.
; Pictures are composed in two segments of our own: `picture`, the scenery, and `frame`, one frame
; to be shown. All drawing procedures draw into the segment that ES holds.

kWidth          equ 320
kHeight         equ 200
kScreenBytes    equ kWidth * kHeight
kVgaSegment     equ 0A000h

; Takes the memory for both pictures. Carry: there is not enough.
AllocatePictures:
        mov     bx, kScreenBytes / 16
        mov     ah, 48h
        int     21h
        jc      .done
        mov     [picture], ax
        mov     bx, kScreenBytes / 16
        mov     ah, 48h
        int     21h
        jc      .done
        mov     [frame], ax
.done:  ret

EnterGraphics:
        mov     ax, 13h
        int     10h
        mov     ax, 1130h               ; where the BIOS keeps its 8 by 8 letters
        mov     bh, 3
        push    es
        int     10h
        mov     [font], bp
        mov     [font + 2], es
        pop     es
        call    BuildPalette
        xor     ax, ax
        jmp     SetLight

LeaveGraphics:
        mov     ax, 3
        int     10h
        ret

; Waits for the beginning of a vertical retrace.
WaitRetrace:
        push    ax
        push    dx
        mov     dx, 3DAh
.in:    in      al, dx
        test    al, 8
        jnz     .in
.out:   in      al, dx
        test    al, 8
        jz      .out
        pop     dx
        pop     ax
        ret

; Begins a frame with a copy of the scenery; ES = the frame from here on.
BeginFrame:
        mov     es, [frame]
        push    ds
        mov     ds, [picture]
        call    CopyScreen
        pop     ds
        ret

; Shows the frame.
ShowFrame:
        pusha
        push    es
        call    WaitRetrace
        mov     ax, kVgaSegment
        mov     es, ax
        push    ds
        mov     ds, [frame]
        call    CopyScreen
        pop     ds
        pop     es
        popa
        ret

; Copies a whole screen from DS to ES.
CopyScreen:
        pusha
        xor     si, si
        xor     di, di
        mov     cx, kScreenBytes / 4
        rep     movsd
        popa
        ret

; AX = x, DX = y, BL = colour. Outside of the screen: nothing.
PutPixel:
        cmp     ax, kWidth
        jae     .done
        cmp     dx, kHeight
        jae     .done
        push    di
        imul    di, dx, kWidth
        add     di, ax
        mov     [es:di], bl
        pop     di
.done:  ret

; A filled rectangle that lies on the screen. AX = x, DX = y, CX = width, BP = height, BL = colour.
FillRect:
        pusha
        imul    di, dx, kWidth
        add     di, ax
        mov     al, bl
.row:   push    cx
        push    di
        rep     stosb
        pop     di
        pop     cx
        add     di, kWidth
        dec     bp
        jnz     .row
        popa
        ret

; A sprite is a byte for its width, one for its height, and a letter a pixel; `colour_of_letter`
; of the program tells the colours. SI = sprite, AX = x, DX = y of its upper left corner, which may lie outside.
; `sprite_mirrored` exchanges left and right.
DrawSprite:
        pusha
        mov     [sprite_x], ax
        lodsb
        xor     ah, ah
        mov     bp, ax                  ; width
        lodsb
        mov     [rows_left], al
        cmp     byte [sprite_mirrored], 0
        je      .placed
        lea     ax, [bp - 1]
        add     [sprite_x], ax
.placed:
        mov     bx, colour_of_letter
.row:   mov     cx, [sprite_x]
        imul    di, dx, kWidth
        add     di, cx
        push    bp
.pixel: lodsb
        xlatb
        test    al, al
        jz      .clear
        cmp     cx, kWidth
        jae     .clear
        cmp     dx, kHeight
        jae     .clear
        mov     [es:di], al
.clear: cmp     byte [sprite_mirrored], 0
        jne     .left
        inc     cx
        inc     di
        dec     bp
        jnz     .pixel
        jmp     .next_row
.left:  dec     cx
        dec     di
        dec     bp
        jnz     .pixel
.next_row:
        pop     bp
        inc     dx
        dec     byte [rows_left]
        jnz     .row
        popa
        ret

; Text with a shadow. SI = text ended by 0, AX = x, DX = y, BL = colour. `text_scale` is the size of
; a letter's pixel; with `text_shading` 1 each row of a letter is a colour brighter than the last.
; The text must lie on the screen. AX = x behind the text.
DrawText:
        push    si
        push    dx
        push    cx
.next:  mov     cl, [si]
        inc     si
        test    cl, cl
        jz      .done
        call    DrawShadedLetter
        mov     cx, [text_scale]
        shl     cx, 3
        add     ax, cx
        jmp     .next
.done:  pop     cx
        pop     dx
        pop     si
        ret

; Text in the middle of the screen: as DrawText, without AX.
DrawCentred:
        call    TextWidth
        neg     ax
        add     ax, kWidth
        shr     ax, 1
        jmp     DrawText

; AX = width of the text SI in pixels.
TextWidth:
        push    si
        mov     ax, -1
.count: inc     ax
        cmp     byte [si], 0
        lea     si, [si + 1]
        jne     .count
        shl     ax, 3
        imul    ax, [text_scale]
        pop     si
        ret

; CL = letter, AX = x, DX = y, BL = colour.
DrawShadedLetter:
        pusha
        push    word [text_shading]
        mov     word [text_shading], 0
        push    bx
        inc     ax
        inc     dx
        mov     bl, 0
        call    DrawLetter
        pop     bx
        pop     word [text_shading]
        dec     ax
        dec     dx
        call    DrawLetter
        popa
        ret

; The same without a shadow.
DrawLetter:
        pusha
        push    fs
        lfs     si, [font]
        movzx   cx, cl
        shl     cx, 3
        add     si, cx
        imul    di, dx, kWidth
        add     di, ax
        mov     dh, 8
.row:   mov     dl, [fs:si]
        inc     si
        push    di
        mov     cx, 8
.dot:   shl     dl, 1
        jnc     .clear
        call    DrawDot
.clear: add     di, [text_scale]
        loop    .dot
        pop     di
        imul    ax, word [text_scale], kWidth
        add     di, ax
        add     bl, [text_shading]
        dec     dh
        jnz     .row
        pop     fs
        popa
        ret

; One pixel of a letter at ES:DI, `text_scale` wide and high, in the colour BL.
DrawDot:
        pusha
        mov     bp, [text_scale]
        mov     dx, bp
        mov     al, bl
.row:   mov     cx, bp
        push    di
        rep     stosb
        pop     di
        add     di, kWidth
        dec     dx
        jnz     .row
        popa
        ret

; AX = sine of the angle AL, a full turn being 256; -64 to 64. Close enough for hills and waves.
Sine:
        push    bx
        push    dx
        mov     bl, al
        and     ax, 127
        mov     dx, 128
        sub     dx, ax
        mul     dx
        shr     ax, 6
        test    bl, bl
        jns     .done
        neg     ax
.done:  pop     dx
        pop     bx
        ret

; AX = a number from 0 to BX - 1 from the row of numbers whose seed lies at DI.
RandomBelow:
        push    dx
        mov     ax, [di]
        mov     dx, 25173
        mul     dx
        add     ax, 13849
        mov     [di], ax
        mul     bx
        mov     ax, dx
        pop     dx
        ret

text_scale:     dw 1
text_shading:   dw 0
sprite_mirrored: db 0

section .bss
picture:        resw 1
frame:          resw 1
font:           resw 2
sprite_x:       resw 1
rows_left:      resb 1
section .text
