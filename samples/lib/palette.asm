; The palette: ramps of colours from dark to bright, and the light over all of them. The program gives
; `palette_ramps`: first colour, count, then red, green and blue of the first and of the last colour,
; 0 to 63; a count of 0 ends them.

kPaletteBytes   equ 256 * 3
kFullLight      equ 32                  ; 0 is black

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

section .bss
palette:        resb kPaletteBytes
section .text
