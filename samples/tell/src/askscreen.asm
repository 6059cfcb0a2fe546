; The screen that asks for a line: text of 80 by 25 characters, 8 pixels wide so that the two halves
; of a syllable touch. A syllable takes two characters of the VGA's font; those for other languages
; and for frames give way to them.

kColumns        equ 80
kRows           equ 25
kWidth          equ kColumns * 8
kTextSegment    equ 0B800h
kFieldColumn    equ 8
kFieldRow       equ 16
kFieldWidth     equ 63                  ; the line takes two rows of it
kFirstCode      equ 80h
kSyllables      equ 61
kCodesLeft      equ 45                  ; so many pairs lie below the blocks, the others behind them
kCodesBehind    equ 0E0h

; Attributes: paper above ink. The colours stand in `colours`.
kPage           equ 17h
kHeading        equ 1Eh
kPanel          equ 3Fh
kPanelKey       equ 3Eh
kPanelEdge      equ 13h
kField          equ 0Fh
kFieldEdge      equ 10h
kFaint          equ 1Bh

ShowScreen:
        mov     ax, 3
        int     10h
        call    NarrowLetters
        mov     ax, 1003h               ; bright paper, no blinking
        xor     bx, bx
        int     10h
        mov     si, colours
        mov     cx, kColours
.colour:
        push    cx
        lodsb
        movzx   bx, al
        lodsb
        mov     dh, al
        lodsb
        mov     ch, al
        lodsb
        mov     cl, al
        mov     ax, 1010h
        int     10h
        pop     cx
        loop    .colour
        mov     ax, kTextSegment
        mov     es, ax
        xor     di, di
        mov     cx, kColumns * kRows
        mov     ax, kPage * 256 + ' '
        rep     stosw
        mov     si, blocks
.block: mov     cx, [si + 2]
        jcxz    .lines
        mov     di, [si]
        mov     ax, [si + 4]
        rep     stosw
        add     si, 6
        jmp     .block
.lines: mov     si, lines
.line:  lodsw
        cmp     ax, -1
        je      .done
        mov     di, ax
        lodsb
        mov     bl, al
        call    PrintText
        jmp     .line
.done:  push    cs
        pop     es
        ret

HideScreen:
        mov     ax, 3
        int     10h
        ret

; Letters 8 pixels wide instead of 9, and the clock that goes with them.
NarrowLetters:
        mov     dx, 3C4h
        mov     ax, 0100h
        out     dx, ax
        mov     dx, 3CCh
        in      al, dx
        and     al, 0F3h
        mov     dx, 3C2h
        out     dx, al
        mov     dx, 3C4h
        mov     al, 1
        out     dx, al
        inc     dx
        in      al, dx
        or      al, 1
        out     dx, al
        dec     dx
        mov     ax, 0300h
        out     dx, ax
        mov     dx, 3DAh                ; and no shift to the side
        in      al, dx
        mov     dx, 3C0h
        mov     al, 33h
        out     dx, al
        mov     al, 0
        out     dx, al
        ret

; SI = text in UTF-8 ended by 0, ES:DI = where, BL = attribute. SI, DI = behind it.
PrintText:
        mov     ah, bl
        cmp     byte [si], 0
        js      .syllable
        lodsb
        je      .done
        stosw
        jmp     PrintText
.syllable:
        call    DecodeSyllable          ; AX, SI
        call    CodeOfSyllable          ; AL
        mov     ah, bl
        stosw
        inc     al
        stosw
        jmp     PrintText
.done:  ret

; AL = the first of the two characters that show the syllable AX, which are made when they are new.
CodeOfSyllable:
        push    cx
        push    di
        mov     di, syllables
        xor     cx, cx
.find:  cmp     cx, [syllables_known]
        je      .new
        cmp     [di], ax
        je      .found
        add     di, 2
        inc     cx
        jmp     .find
.new:   mov     [di], ax
        inc     word [syllables_known]
        call    .code
        call    MakeLetters
        jmp     .done
.found: call    .code
.done:  mov     al, cl
        pop     di
        pop     cx
        ret
.code:  cmp     cl, kCodesLeft          ; CL = the first character of the pair CL
        jb      .left
        add     cl, (kCodesBehind - kFirstCode) / 2 - kCodesLeft
.left:  add     cl, cl
        add     cl, kFirstCode
        ret

; Puts the syllable AX into the font, as the character CL and the next one.
MakeLetters:
        pusha
        push    es
        push    cs
        pop     es
        push    cx
        push    ax
        mov     di, letters
        mov     cx, 16
        xor     ax, ax
        rep     stosw
        pop     bp
        xor     dx, dx
        call    DrawSyllable            ; at 0, 0
        call    WidenStrokes
        pop     dx
        xor     dh, dh
        mov     cx, 2
        mov     bx, 16 * 256            ; 16 rows each
        mov     bp, letters
        mov     ax, 1100h
        int     10h
        pop     es
        popa
        ret

; Gives a syllable's strokes the width of those of the BIOS: each dot gets one to the right of it,
; but where only one column parts it from the next dot.
WidenStrokes:
        mov     si, letters
        mov     cx, 16
.row:   mov     ah, [si]
        mov     al, [si + 16]
        mov     dx, ax
        shr     dx, 1
        mov     bx, ax
        shl     bx, 1
        not     bx
        and     dx, bx
        or      ax, dx
        mov     [si], ah
        mov     [si + 16], al
        inc     si
        loop    .row
        ret

; A dot of the syllable that is being made. AX = x, DX = y.
PutPixel:
        pusha
        cmp     ax, 16
        jae     .done
        cmp     dx, 16
        jae     .done
        mov     cx, ax
        and     cx, 7
        mov     bl, 80h
        shr     bl, cl
        shl     ax, 1                   ; 16 bytes from one half to the other
        and     ax, 16
        add     ax, dx
        mov     di, ax
        or      [letters + di], bl
.done:  popa
        ret

; `told` = the line that is typed, of at most kLongestTail characters. Carry: Esc.
ReadLine:
        mov     word [told_length], 0
.again: call    DrawLine
        xor     ah, ah
        int     16h
        cmp     al, 13
        je      .done
        cmp     al, 27
        je      .leave
        mov     bx, [told_length]
        cmp     al, 8
        je      .back
        cmp     al, ' '
        jb      .again
        cmp     al, 7Eh
        ja      .again
        cmp     bx, kLongestTail
        jae     .again
        mov     [told + bx], al
        inc     word [told_length]
        jmp     .again
.back:  sub     bx, 1
        jc      .again
        mov     [told_length], bx
        jmp     .again
.leave: stc
        ret
.done:  clc
        ret

; The line in its field, and the cursor behind it.
DrawLine:
        mov     ax, kTextSegment
        mov     es, ax
        xor     bx, bx
        mov     di, (kFieldRow * kColumns + kFieldColumn) * 2
        mov     ah, kField
.letter:
        mov     al, ' '
        cmp     bx, [told_length]
        jae     .blank
        mov     al, [told + bx]
.blank: stosw
        inc     bx
        cmp     bx, kFieldWidth
        jne     .row
        add     di, (kColumns - kFieldWidth) * 2
.row:   cmp     bx, kLongestTail
        jb      .letter
        push    cs
        pop     es
        mov     ax, [told_length]
        mov     dx, kFieldRow * 256 + kFieldColumn
        cmp     ax, kFieldWidth
        jb      .place
        sub     ax, kFieldWidth
        inc     dh
        cmp     ax, kFieldWidth
        jb      .place
        dec     ax                      ; full
.place: add     dl, al
        mov     ah, 2
        xor     bh, bh
        int     10h
        ret

%define AT(row, column) ((row) * kColumns + (column)) * 2

; Place, count, character and attribute; a count of 0 ends them.
blocks:
        dw      AT(6, 5), 70, kPanelEdge * 256 + 0DCh
        dw      AT(7, 5), 70, kPanel * 256 + ' '
        dw      AT(8, 5), 70, kPanel * 256 + ' '
        dw      AT(9, 5), 70, kPanel * 256 + ' '
        dw      AT(10, 5), 70, kPanelEdge * 256 + 0DFh
        dw      AT(kFieldRow - 1, kFieldColumn - 1), kFieldWidth + 2, kFieldEdge * 256 + 0DCh
        dw      AT(kFieldRow, kFieldColumn - 1), kFieldWidth + 2, kField * 256 + ' '
        dw      AT(kFieldRow + 1, kFieldColumn - 1), kFieldWidth + 2, kField * 256 + ' '
        dw      AT(kFieldRow + 2, kFieldColumn - 1), kFieldWidth + 2, kFieldEdge * 256 + 0DFh
        dw      0, 0

%macro line 4                           ; row, column, attribute, text
        dw      AT(%1, %2)
        db      %3, %4, 0
%endmacro

; A place of -1 ends them.
lines:
        line    2, 6, kHeading, "주는 대로 적기"
        line    4, 6, kFaint, "TELL writes what it was given."
        line    7, 8, kPanelKey, "TELL 말"
        line    7, 28, kPanel, "말을 TELL.TXT에 그대로 적습니다"
        line    9, 8, kPanelKey, "TELL /COPY 파일"
        line    9, 28, kPanel, "파일을 COPIED.TXT로 베낍니다"
        line    13, 7, kPage, "받은 말이 없습니다. 한 줄 적고 Enter를 누르십시오."
        line    20, 7, kFaint, "Esc 적지 않고 끝내기"
        line    22, 7, kFaint, "Type a line and press Enter; Esc leaves without writing."
        dw      -1

; Number of a colour of the VGA, its red, green and blue.
colours:
        db      1, 6, 8, 20
        db      3, 12, 17, 36
        db      7, 50, 52, 58
        db      59, 26, 40, 52
        db      62, 63, 54, 26
kColours        equ ($ - colours) / 4

section .bss
syllables:      resw kSyllables
syllables_known: resw 1
letters:        resb 32
section .text
