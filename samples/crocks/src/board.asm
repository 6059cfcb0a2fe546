; The board and its rules. A cell is told by its number, row * kColumns + column. Crocks are pushed;
; on ice a crock slides on until it is off the ice or something stands in its way.

kColumns        equ 20
kRows           equ 11
kCells          equ kColumns * kRows

kOutside        equ 0                   ; what a cell of `floor` is
kYard           equ 1
kPlace          equ 2                   ; a flat stone that waits for a crock
kIceFloor       equ 3
kWall           equ 4

; What a move was, a byte for each in `moves`: the direction in the lowest two bits, then whether a
; crock was pushed, then how many cells it went.
kPushed         equ 4
kFarShift       equ 3
kMoves          equ 4096                ; kept for undoing; older ones are forgotten

; Puts level [level], from 0 on, on the board, in the middle.
LoadLevel:
        push    es
        push    ds
        pop     es
        mov     di, floor
        mov     cx, kCells * 2          ; and `crocks`
        xor     al, al
        rep     stosb
        mov     [steps], cx
        mov     [pushes], cx
        mov     [moves_made], cx
        mov     [moves_next], cx
        mov     byte [facing], kDown
        call    LevelRow
        mov     [level_name], si
        call    MeasureLevel
        mov     ax, kRows
        sub     ax, dx
        shr     ax, 1
        imul    di, ax, kColumns
        mov     ax, kColumns
        sub     ax, cx
        shr     ax, 1
        add     di, ax
        call    PlaceLevel
        mov     bx, [player]
        call    FloodYard
        call    CountHome
        pop     es
        ret

; SI = the name of the level [level]; behind it stand its fewest pushes and its rows.
LevelRow:
        mov     bx, [level]
        shl     bx, 1
        mov     si, [levels + bx]
        ret

; SI = level. CX = columns, DX = rows, SI = its first row.
MeasureLevel:
        lodsb
        test    al, al
        jnz     MeasureLevel
        lodsb
        mov     ah, 0
        mov     [fewest], ax
        push    si
        xor     cx, cx
        xor     dx, dx
.row:   xor     bx, bx
.cell:  lodsb
        test    al, al
        jz      .done
        cmp     al, '|'
        je      .end
        inc     bx
        jmp     .cell
.end:   inc     dx
        cmp     bx, cx
        jbe     .row
        mov     cx, bx
        jmp     .row
.done:  pop     si
        ret

; SI = first row of a level, DI = cell of its corner.
PlaceLevel:
        mov     bx, di
.cell:  lodsb
        test    al, al
        jz      .done
        cmp     al, '|'
        je      .row
        cmp     al, '#'
        jne     .ice
        mov     byte [floor + bx], kWall
.ice:   cmp     al, '~'
        jne     .place
        mov     byte [floor + bx], kIceFloor
.place: cmp     al, '.'
        je      .is_place
        cmp     al, '*'
        je      .crock_home
        cmp     al, '+'
        jne     .crock
        mov     [player], bx
.is_place:
        mov     byte [floor + bx], kPlace
.crock: cmp     al, '$'
        jne     .player
        mov     byte [crocks + bx], 1
.player:
        cmp     al, '@'
        jne     .next
        mov     [player], bx
.next:  inc     bx
        jmp     .cell
.crock_home:
        mov     byte [floor + bx], kPlace
        mov     byte [crocks + bx], 1
        jmp     .next
.row:   add     di, kColumns
        mov     bx, di
        jmp     .cell
.done:  ret

; All that can be reached from the cell BX and is nothing yet is yard.
FloodYard:
        mov     di, flood
        mov     [di], bx
        add     di, 2
        mov     byte [seen + bx], 1
        cmp     byte [floor + bx], kOutside
        jne     .more
        mov     byte [floor + bx], kYard
.more:  cmp     di, flood
        je      .done
        sub     di, 2
        mov     si, [di]
        xor     bx, bx
.side:  push    bx
        mov     bx, [way + bx]
        add     bx, si
        mov     al, [floor + bx]
        cmp     al, kWall
        je      .next
        cmp     byte [seen + bx], 0
        jne     .next
        mov     byte [seen + bx], 1
        mov     [di], bx
        add     di, 2
        cmp     al, kOutside
        jne     .next
        mov     byte [floor + bx], kYard
.next:  pop     bx
        add     bx, 2
        cmp     bx, 8
        jb      .side
        jmp     .more
.done:  mov     di, seen
        mov     cx, kCells
        xor     al, al
        rep     stosb
        ret

; `away` = places without a crock.
CountHome:
        mov     word [away], 0
        xor     bx, bx
.cell:  cmp     byte [floor + bx], kPlace
        jne     .next
        cmp     byte [crocks + bx], 0
        jne     .next
        inc     word [away]
.next:  inc     bx
        cmp     bx, kCells
        jb      .cell
        ret

; One step to AL (kUp and so on). Carry: something stands in the way. `pushed_from` = where the crock
; stood that went along, `pushed_far` = how far it went; 0: none did.
Step:   mov     [facing], al
        movzx   bx, al
        shl     bx, 1
        mov     dx, [way + bx]
        mov     bx, [player]
        add     bx, dx
        mov     word [pushed_far], 0
        mov     [pushed_from], bx
        cmp     byte [floor + bx], kWall
        je      .blocked
        cmp     byte [crocks + bx], 0
        je      .walk
        call    Slide
        jc      .blocked
        inc     word [pushes]
.walk:  mov     bx, [pushed_from]
        mov     [player], bx
        inc     word [steps]
        mov     al, [pushed_far]
        shl     al, kFarShift
        jz      .note
        or      al, kPushed
.note:  or      al, [facing]
        mov     bx, [moves_next]
        mov     [moves + bx], al
        inc     bx
        and     bx, kMoves - 1
        mov     [moves_next], bx
        cmp     word [moves_made], kMoves
        adc     word [moves_made], 0
        clc
        ret
.blocked:
        stc
        ret

; Moves the crock of the cell BX by DX, as far as it goes. Carry: it cannot.
Slide:  mov     si, bx
        add     si, dx
        call    IsFree
        jc      .done
        mov     byte [crocks + bx], 0
.on:    inc     word [pushed_far]
        cmp     byte [floor + si], kIceFloor
        jne     .stop
        add     si, dx
        call    IsFree
        jnc     .on
        sub     si, dx
.stop:  mov     byte [crocks + si], 1
        call    CountHome
        clc
.done:  ret

; Carry: no crock can come to the cell SI.
IsFree: cmp     byte [floor + si], kWall
        je      .no
        cmp     byte [crocks + si], 1
        je      .no
        clc
        ret
.no:    stc
        ret

; Takes the last move back. Carry: there is none.
Undo:   cmp     word [moves_made], 1
        jc      .done
        dec     word [moves_made]
        dec     word [steps]
        mov     bx, [moves_next]
        dec     bx
        and     bx, kMoves - 1
        mov     [moves_next], bx
        mov     al, [moves + bx]
        mov     cl, al
        and     al, 3
        mov     [facing], al
        movzx   bx, al
        shl     bx, 1
        mov     dx, [way + bx]
        mov     bx, [player]
        sub     [player], dx
        test    cl, kPushed
        jz      .walked
        dec     word [pushes]
        mov     byte [crocks + bx], 1
        shr     cl, kFarShift
.back:  add     bx, dx
        dec     cl
        jnz     .back
        mov     byte [crocks + bx], 0
        call    CountHome
.walked:
        clc
.done:  ret

kUp             equ 0
kLeft           equ 1
kRight          equ 2
kDown           equ 3
way:            dw -kColumns, -1, 1, kColumns

section .bss
level:          resw 1
level_name:     resw 1
fewest:         resw 1                  ; pushes that it can be done with
floor:          resb kCells
crocks:         resb kCells
seen:           resb kCells
flood:          resw kCells
player:         resw 1
facing:         resb 1
steps:          resw 1
pushes:         resw 1
away:           resw 1
pushed_from:    resw 1
pushed_far:     resw 1
moves:          resb kMoves
moves_made:     resw 1
moves_next:     resw 1
section .text
