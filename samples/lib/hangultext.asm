; Text in Hangul and ASCII, from UTF-8 as it stands in the source. A syllable is composed of strokes
; at the size asked for: it stands on a grid of 14 by 15 units, and each of its letters has a box on
; the grid that depends on the kind of its vowel and on whether another letter follows. Letters are
; drawn on a grid of their own, 12 by 12, that is stretched over the box.

kHangulAdvance  equ 15                  ; units from syllable to syllable
kHangulHeight   equ 15                  ; pixels of a line of text at a unit of 1
kTallAdvance    equ 8                   ; pixels from one ASCII character to the next

; SI = text ended by 0, AX = x, DX = y, BL = colour. AX = x behind the text. `hangul_unit` is a unit
; in pixels, `hangul_pen` the width of a stroke, `hangul_growth` what is added to it on both sides;
; ASCII has one size, meant for a unit of 1.
DrawHangul:
        push    si
        mov     [hangul_colour], bl
.next:  mov     bl, [si]
        test    bl, bl
        jz      .done
        jns     .ascii
        push    ax
        call    DecodeSyllable
        mov     bp, ax
        pop     ax
        call    DrawSyllable
        push    dx
        imul    dx, [hangul_unit], kHangulAdvance
        add     ax, dx
        pop     dx
        jmp     .next
.ascii: inc     si
        call    DrawTallLetter
        add     ax, kTallAdvance
        jmp     .next
.done:  pop     si
        ret

; The same with a dark edge to the right and below. BH = its colour.
DrawHangulEdged:
        push    ax
        push    dx
        push    bx
        inc     ax
        inc     dx
        mov     bl, bh
        call    DrawHangul
        pop     bx
        pop     dx
        pop     ax
        jmp     DrawHangul

; The same in the middle of the screen; AX is not needed.
DrawHangulCentred:
        call    HangulWidth
        neg     ax
        add     ax, kWidth
        shr     ax, 1
        jmp     DrawHangulEdged

; AX = width of the text SI at a unit of 1.
HangulWidth:
        push    si
        xor     ax, ax
.next:  cmp     byte [si], 0
        je      .done
        js      .syllable
        inc     si
        add     ax, kTallAdvance
        jmp     .next
.syllable:
        add     si, 3
        add     ax, kHangulAdvance
        jmp     .next
.done:  pop     si
        ret

; AX = number of the syllable at SI, from GA on; SI = behind its three bytes.
DecodeSyllable:
        push    bx
        mov     al, [si]
        and     ax, 0Fh
        shl     ax, 6
        mov     bl, [si + 1]
        and     bx, 3Fh
        add     ax, bx
        shl     ax, 6
        mov     bl, [si + 2]
        and     bx, 3Fh
        add     ax, bx
        sub     ax, 0AC00h
        add     si, 3
        pop     bx
        ret

; BL = character, AX = x, DX = y: from the BIOS, 8 by 16.
DrawTallLetter:
        cmp     bl, ' '
        je      .blank
        pusha
        push    fs
        lfs     si, [tall_font]
        movzx   bx, bl
        shl     bx, 4
        add     si, bx
        mov     bl, [hangul_colour]
        mov     cx, 16
.row:   mov     bh, [fs:si]
        inc     si
        push    ax
.dot:   shl     bh, 1
        jnc     .clear
        call    PutPixel
.clear: inc     ax
        test    bh, bh
        jnz     .dot
        pop     ax
        inc     dx
        loop    .row
        pop     fs
        popa
.blank: ret

; BP = number of the syllable, AX = x, DX = y of its corner.
DrawSyllable:
        pusha
        mov     [syllable_x], ax
        mov     [syllable_y], dx
        mov     ax, bp
        xor     dx, dx
        mov     bx, 21 * 28
        div     bx
        mov     bp, ax                  ; first letter
        mov     ax, dx
        xor     dx, dx
        mov     bx, 28
        div     bx
        mov     bx, ax                  ; vowel
        mov     si, dx                  ; last letter
        shl     bx, 1
        mov     ax, [vowels + bx]       ; its lying and its standing part
        mov     di, layout_lying
        test    ah, ah
        jz      .kind
        mov     di, layout_standing
        test    al, al
        jz      .kind
        mov     di, layout_both
.kind:  test    si, si
        jz      .open
        add     di, kLayoutBytes
.open:  shl     bp, 1
        shl     si, 1
        mov     cx, [firsts + bp]
        call    DrawPart
        mov     cl, al
        mov     ch, 0
        call    DrawPart
        mov     cl, ah
        call    DrawPart
        mov     cx, [lasts + si]
        call    DrawPart
        popa
        ret

; Draws the letter CL into the box at DI, or CL and CH side by side; 0: none. DI = the next box.
DrawPart:
        pusha
        mov     al, [di]                ; left and top, right and bottom, a digit each
        mov     bx, [hangul_unit]
        mov     dl, al
        shr     al, 4
        mul     bl
        mov     [box_x], ax
        mov     al, dl
        and     al, 15
        mul     bl
        mov     [box_y], ax
        mov     al, [di + 1]
        mov     dl, al
        shr     al, 4
        mul     bl
        sub     ax, [box_x]
        mov     [box_width], ax
        mov     al, dl
        and     al, 15
        mul     bl
        sub     ax, [box_y]
        mov     [box_height], ax
        test    ch, ch
        jz      .one
        mov     ax, [box_width]
        mov     dx, ax
        add     dx, [box_x]             ; right end
        sub     ax, bx
        sub     ax, bx
        shr     ax, 1
        mov     [box_width], ax
        call    DrawJamo
        sub     dx, ax
        mov     [box_x], dx
        mov     cl, ch
.one:   call    DrawJamo
        popa
        add     di, 2
        ret

; CL = letter, or 0.
DrawJamo:
        movzx   bx, cl
        test    bx, bx
        jz      .none
        pusha
        shl     bx, 1
        mov     si, [jamo + bx]
.stroke:
        lodsb
        cmp     al, kJamoEnd
        je      .done
        cmp     al, kJamoRing
        je      .ring
        call    PlacePoint
        mov     cx, bx
        mov     bp, dx
        lodsb
        call    PlacePoint
        call    DrawStroke
        jmp     .stroke
.ring:  lodsb
        call    PlacePoint
        mov     cx, bx
        mov     bp, dx
        lodsb
        call    PlacePoint
        call    DrawOval
        jmp     .stroke
.done:  popa
.none:  ret

; AL = point of a letter's grid, x and y a digit each. BX, DX = pixels from the screen's corner.
PlacePoint:
        push    ax
        push    cx
        mov     ah, 0
        mov     bx, ax
        shr     ax, 4
        mul     word [box_width]
        call    .scale
        add     ax, [box_x]
        add     ax, [syllable_x]
        xchg    ax, bx
        and     ax, 15
        mul     word [box_height]
        call    .scale
        add     ax, [box_y]
        add     ax, [syllable_y]
        mov     dx, ax
        pop     cx
        pop     ax
        ret
.scale: add     ax, 6
        xor     dx, dx
        mov     cx, 12
        div     cx
        ret

; From CX, BP to BX, DX, which lies to the right of it or below; the pen's corner moves on the line.
; Only a slanting stroke may go to the left.
DrawStroke:
        pusha
        cmp     cx, bx
        je      .bar
        cmp     bp, dx
        jne     DrawSlant
.bar:   sub     bx, cx                  ; width and height, then grown
        sub     dx, bp
        mov     ax, [hangul_growth]
        sub     cx, ax
        sub     bp, ax
        shl     ax, 1
        add     ax, [hangul_pen]
        add     bx, ax
        add     ax, dx
        mov     dx, bp
        mov     bp, ax
        mov     ax, cx
        mov     cx, bx
        call    FillDots
        popa
        ret

; AX = x, DX = y, CX = width, BP = height.
FillDots:
        pusha
        mov     bl, [hangul_colour]
        mov     si, ax
        mov     di, cx
.row:   mov     ax, si
        mov     cx, di
.dot:   call    [hangul_dot]
        inc     ax
        loop    .dot
        inc     dx
        dec     bp
        jnz     .row
        popa
        ret

; The rest of DrawStroke for a slant: a square of the pen's size at each row of the way, and halfway
; between, so that a flat slant has no holes.
DrawSlant:
        mov     [slant_x], cx
        mov     [slant_y], bp
        sub     bx, cx
        sub     dx, bp
        mov     si, bx                  ; SI, DI = way
        mov     di, dx
        mov     bp, dx
        shl     bp, 1                   ; steps
        xor     cx, cx
.step:  mov     ax, si
        call    .part
        add     ax, [slant_x]
        mov     bx, ax
        mov     ax, di
        call    .part
        add     ax, [slant_y]
        mov     dx, ax
        mov     ax, bx
        push    cx
        push    bp
        mov     bp, [hangul_growth]
        sub     ax, bp
        sub     dx, bp
        shl     bp, 1
        add     bp, [hangul_pen]
        mov     cx, bp
        call    FillDots
        pop     bp
        pop     cx
        inc     cx
        cmp     cx, bp
        jbe     .step
        popa
        ret
; AX = AX * CX / BP, rounded down to halves of it.
.part:  imul    cx
        idiv    bp
        ret

; An oval ring as wide as the pen in the box from CX, BP to BX, DX, the pen's corner in the box.
DrawOval:
        pusha
        mov     ax, [hangul_growth]
        sub     cx, ax
        sub     bp, ax
        add     bx, ax
        add     dx, ax
        add     bx, [hangul_pen]
        add     dx, [hangul_pen]
        mov     [oval_x], cx
        mov     [oval_y], bp
        sub     bx, cx
        sub     dx, bp
        mov     si, bx                  ; width and height
        mov     di, dx
        xor     dx, dx
.row:   xor     ax, ax
.dot:   call    OnOval
        jnc     .clear
        pusha
        add     ax, [oval_x]
        add     dx, [oval_y]
        mov     bl, [hangul_colour]
        call    [hangul_dot]
        popa
.clear: inc     ax
        cmp     ax, si
        jb      .dot
        inc     dx
        cmp     dx, di
        jb      .row
        popa
        ret

; Carry: the pixel AX, DX of an oval SI wide and DI high is on its rim.
OnOval: pusha
        call    InOval
        jnc     .done
        mov     cx, [hangul_growth]
        shl     cx, 1
        add     cx, [hangul_pen]
        sub     ax, cx
        sub     dx, cx
        shl     cx, 1
        sub     si, cx
        jle     .rim
        sub     di, cx
        jle     .rim
        call    InOval
        cmc
        jmp     .done
.rim:   stc
.done:  popa
        ret

; Carry: the pixel AX, DX, maybe negative, is inside of an oval SI wide and DI high.
InOval:
        pushad
        movsx   eax, ax
        movsx   edx, dx
        movzx   esi, si
        movzx   edi, di
        lea     eax, [eax * 2 + 1]
        sub     eax, esi
        imul    eax, edi
        imul    eax, eax
        lea     edx, [edx * 2 + 1]
        sub     edx, edi
        imul    edx, esi
        imul    edx, edx
        add     eax, edx
        imul    esi, edi
        imul    esi, esi
        cmp     esi, eax
        cmc                             ; carry unless the square is beyond the rim
        popad
        ret

; Where the BIOS keeps its letters of 8 by 16.
FindTallFont:
        push    es
        push    bp
        mov     ax, 1130h
        mov     bh, 6
        int     10h
        mov     [tall_font], bp
        mov     [tall_font + 2], es
        pop     bp
        pop     es
        ret

hangul_unit:    dw 1
hangul_pen:     dw 1
hangul_growth:  dw 0
hangul_dot:     dw PutPixel             ; draws a dot: AX = x, DX = y, BL = colour, keeps registers

; Boxes: left and top, right and bottom, for the first letter, the lying and the standing part of the
; vowel and the last letter; then the same for syllables with a last letter.
kLayoutBytes    equ 8
layout_standing:
        db      02h, 6Bh,  0, 0,  90h, 0DEh,  0, 0
        db      00h, 66h,  0, 0,  90h, 0D7h,  29h, 0CEh
layout_lying:
        db      20h, 0B7h,  09h, 0DDh,  0, 0,  0, 0
        db      20h, 0B4h,  06h, 0D8h,  0, 0,  2Ah, 0BEh
layout_both:
        db      10h, 76h,  08h, 9Ch,  0A0h, 0DEh,  0, 0
        db      10h, 74h,  06h, 98h,  0A0h, 0D8h,  2Ah, 0CEh

; Letters, each a row of strokes: from and to.
kJamoEnd        equ 0FFh
kJamoRing       equ 0FEh

; The number of a letter is its place in `jamo`.
%assign jamo_number 0
%macro number_jamo 1-*
    %rep %0
%assign jamo_number jamo_number + 1
%1 equ jamo_number
    %rotate 1
    %endrep
%endmacro
        number_jamo kG, kN, kD, kR, kM, kB, kS, kNg, kJ, kCh, kK, kT, kP, kH
        number_jamo kVa, kVya, kVeo, kVyeo, kVi, kVae, kVyae, kVe, kVye, kVo, kVyo, kVu, kVyu, kVeu

jamo:   dw      0, .g, .n, .d, .r, .m, .b, .s, .ng, .j, .ch, .k, .t, .p, .h
        dw      .a, .ya, .eo, .yeo, .i, .ae, .yae, .e, .ye, .o, .yo, .u, .yu, .eu
.g:     db      00h, 0C0h,  0C0h, 0CCh, kJamoEnd
.n:     db      00h, 0Ch,  0Ch, 0CCh, kJamoEnd
.d:     db      00h, 0C0h,  00h, 0Ch,  0Ch, 0CCh, kJamoEnd
.r:     db      00h, 0C0h,  0C0h, 0C6h,  06h, 0C6h,  06h, 0Ch,  0Ch, 0CCh, kJamoEnd
.m:     db      00h, 0C0h,  00h, 0Ch,  0C0h, 0CCh,  0Ch, 0CCh, kJamoEnd
.b:     db      00h, 0Ch,  0C0h, 0CCh,  06h, 0C6h,  0Ch, 0CCh, kJamoEnd
.s:     db      60h, 65h,  65h, 0Ch,  65h, 0CCh, kJamoEnd
.ng:    db      kJamoRing, 00h, 0CCh, kJamoEnd
.j:     db      00h, 0C0h,  60h, 66h,  66h, 0Ch,  66h, 0CCh, kJamoEnd
.ch:    db      40h, 80h,  03h, 0C3h,  63h, 67h,  67h, 0Ch,  67h, 0CCh, kJamoEnd
.k:     db      00h, 0C0h,  0C0h, 0CCh,  06h, 0C6h, kJamoEnd
.t:     db      00h, 0C0h,  06h, 0C6h,  00h, 0Ch,  0Ch, 0CCh, kJamoEnd
.p:     db      00h, 0C0h,  30h, 3Ch,  90h, 9Ch,  0Ch, 0CCh, kJamoEnd
.h:     db      40h, 80h,  03h, 0C3h,  kJamoRing, 16h, 0BCh, kJamoEnd
.a:     db      30h, 3Ch,  36h, 0C6h, kJamoEnd
.ya:    db      30h, 3Ch,  34h, 0C4h,  38h, 0C8h, kJamoEnd
.eo:    db      90h, 9Ch,  06h, 96h, kJamoEnd
.yeo:   db      90h, 9Ch,  04h, 94h,  08h, 98h, kJamoEnd
.i:     db      80h, 8Ch, kJamoEnd
.ae:    db      10h, 1Ch,  0A0h, 0ACh,  16h, 0A6h, kJamoEnd
.yae:   db      10h, 1Ch,  0A0h, 0ACh,  14h, 0A4h,  18h, 0A8h, kJamoEnd
.e:     db      06h, 56h,  50h, 5Ch,  0C0h, 0CCh, kJamoEnd
.ye:    db      04h, 54h,  08h, 58h,  50h, 5Ch,  0C0h, 0CCh, kJamoEnd
.o:     db      0Ch, 0CCh,  60h, 6Ch, kJamoEnd
.yo:    db      0Ch, 0CCh,  40h, 4Ch,  80h, 8Ch, kJamoEnd
.u:     db      00h, 0C0h,  60h, 6Ch, kJamoEnd
.yu:    db      00h, 0C0h,  40h, 4Ch,  80h, 8Ch, kJamoEnd
.eu:    db      06h, 0C6h, kJamoEnd

; In the order of Unicode: one letter or two.
firsts: db      kG, 0, kG, kG, kN, 0, kD, 0, kD, kD, kR, 0, kM, 0, kB, 0, kB, kB, kS, 0, kS, kS
        db      kNg, 0, kJ, 0, kJ, kJ, kCh, 0, kK, 0, kT, 0, kP, 0, kH, 0
vowels: db      0, kVa, 0, kVae, 0, kVya, 0, kVyae, 0, kVeo, 0, kVe, 0, kVyeo, 0, kVye, kVo, 0
        db      kVo, kVa, kVo, kVae, kVo, kVi, kVyo, 0, kVu, 0, kVu, kVeo, kVu, kVe, kVu, kVi
        db      kVyu, 0, kVeu, 0, kVeu, kVi, 0, kVi
lasts:  db      0, 0, kG, 0, kG, kG, kG, kS, kN, 0, kN, kJ, kN, kH, kD, 0, kR, 0, kR, kG, kR, kM
        db      kR, kB, kR, kS, kR, kT, kR, kP, kR, kH, kM, 0, kB, 0, kB, kS, kS, 0, kS, kS, kNg, 0
        db      kJ, 0, kCh, 0, kK, 0, kT, 0, kP, 0, kH, 0

section .bss
tall_font:      resw 2
hangul_colour:  resb 1
syllable_x:     resw 1
syllable_y:     resw 1
box_x:          resw 1
box_y:          resw 1
box_width:      resw 1
box_height:     resw 1
slant_x:        resw 1
slant_y:        resw 1
oval_x:         resw 1
oval_y:         resw 1
section .text
