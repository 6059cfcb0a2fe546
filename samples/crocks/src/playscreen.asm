; The picture of the play.

; The strip below the yard: its name, and words for the numbers.
DrawHudFrame:
        xor     ax, ax
        mov     dx, kHudY
        mov     cx, kWidth
        mov     bp, kHeight - kHudY
        mov     bl, kNight + 1
        call    FillRect
        mov     bp, 1
        mov     bl, kNight + 9
        call    FillRect
        mov     ax, [level]
        inc     ax
        mov     di, text_number
        call    FormatShort
        mov     si, text_number
        mov     ax, 6
        mov     dx, kHudY + 5
        mov     bl, kGlow + 13
        call    DrawHangul
        add     ax, 6
        mov     si, [level_name]
        mov     bl, kSnow + 14
        call    DrawHangul
        mov     si, text_pushes
        mov     ax, kPushesX
        mov     bl, kIce + 12
        call    DrawHangul
        mov     si, text_steps
        mov     ax, kStepsX
        mov     bl, kIce + 12
        jmp     DrawHangul

kPushesX        equ 152
kStepsX         equ 244
kWordWidth      equ 36

; Draws the yard with the crocks that rest into `picture`; not the one of the cell `lifted`.
DrawRest:
        push    es
        mov     es, [picture]
        push    ds
        mov     ds, [ground]
        call    CopyScreen
        pop     ds
        xor     bx, bx
.cell:  cmp     byte [crocks + bx], 0
        je      .next
        cmp     bx, [lifted]
        je      .next
        call    DrawRestingCrock
.next:  inc     bx
        cmp     bx, kCells
        jb      .cell
        call    DrawNumbers
        pop     es
        ret

; The crock of the cell BX.
DrawRestingCrock:
        call    CellPlace
        mov     si, sprite_crock
        cmp     byte [floor + bx], kPlace
        jne     DrawCrock
        mov     si, sprite_crock_home
        ; fall through

; SI = sprite, AX, DX = corner of its cell. A crock is taller than a cell.
DrawCrock:
        push    dx
        push    bx
        sub     dx, 4
        call    DrawSprite
        pop     bx
        pop     dx
        ret

; Pushes, the fewest there are, and steps, into ES.
DrawNumbers:
        mov     ax, kPushesX + kWordWidth
        mov     dx, kHudY + 4
        mov     cx, kStepsX - kPushesX - kWordWidth
        mov     bp, 18
        mov     bl, kNight + 1
        call    FillRect
        mov     di, text_number
        mov     ax, [pushes]
        call    FormatShort
        call    FindEnd
        mov     byte [di], '/'
        inc     di
        mov     ax, [fewest]
        call    FormatShort
        mov     si, text_number
        mov     ax, kPushesX + kWordWidth
        mov     dx, kHudY + 5
        mov     bl, kSnow + 15
        call    DrawHangul
        ; fall through

DrawSteps:
        mov     ax, kStepsX + kWordWidth
        mov     dx, kHudY + 4
        mov     cx, kWidth - kStepsX - kWordWidth
        mov     bp, 18
        mov     bl, kNight + 1
        call    FillRect
        mov     di, text_number
        mov     ax, [steps]
        call    FormatShort
        mov     si, text_number
        mov     ax, kStepsX + kWordWidth
        mov     dx, kHudY + 5
        mov     bl, kSnow + 15
        jmp     DrawHangul

; DI = end of the text DI.
FindEnd:
        cmp     byte [di], 0
        je      .found
        inc     di
        jmp     FindEnd
.found: ret

DrawPlayFrame:
        call    BeginFrame
        cmp     byte [is_done], 0
        je      .pieces
        cmp     word [done_ticks], kDoneTicks
        jae     .covered
.pieces:
        call    DrawMovingCrock
        call    DrawChild
        call    DrawBefore
.covered:
        mov     cx, 24
        cmp     byte [snow_rises], 0
        je      .snow
        mov     cx, kFlakes
.snow:  call    DrawSnow
        jmp     ShowFrame

; The crock that is on its way.
DrawMovingCrock:
        cmp     word [lifted], -1
        je      .done
        mov     bx, [pushed_from]
        call    CellPlace
        mov     cx, [walk_ticks]
        cmp     cx, kStepTicks
        jbe     .pushed
        sub     cx, kStepTicks
        shl     cx, 1
        add     cx, kStepTicks
.pushed:
        shl     cx, 1
        imul    bp, [pushed_far], kCell
        cmp     cx, bp
        jbe     .place
        mov     cx, bp
.place: call    AddWay
        mov     si, sprite_crock
        jmp     DrawCrock
.done:  ret

; Adds CX pixels in the direction that the child faces to AX, DX.
AddWay: cmp     byte [facing], kUp
        je      .up
        cmp     byte [facing], kLeft
        je      .left
        cmp     byte [facing], kRight
        je      .right
        add     dx, cx
        ret
.up:    sub     dx, cx
        ret
.left:  sub     ax, cx
        ret
.right: add     ax, cx
        ret

DrawChild:
        mov     bx, [player]
        call    CellPlace
        mov     cx, [walk_ticks]
        xor     si, si
        cmp     word [walk_all], 0
        je      .place
        shl     cx, 1
        sub     cx, kCell
        jns     .place
        call    AddWay
        mov     cx, [steps]             ; one foot, then the other
        and     cx, 1
        mov     [sprite_mirrored], cl
        mov     si, 8
.place: movzx   bx, byte [facing]
        cmp     bl, kLeft
        jb      .turned
        cmp     bl, kDown
        je      .turned
        sub     bl, kLeft
        mov     [sprite_mirrored], bl
        movzx   bx, byte [facing]
.turned:
        shl     bx, 1
        mov     si, [child_sprites + bx + si]
        add     ax, 2
        sub     dx, 5
        call    DrawSprite
        mov     byte [sprite_mirrored], 0
        ret

; Crocks that stand before the child, in the row below it.
DrawBefore:
        mov     bx, [player]
        cmp     byte [facing], kUp
        jne     .row
        cmp     word [walk_all], 0
        je      .row
        add     bx, kColumns            ; it is still coming from there
.row:   add     bx, kColumns - 1
        mov     cx, 3
.cell:  cmp     bx, kCells
        jae     .next
        cmp     byte [crocks + bx], 0
        je      .next
        cmp     bx, [lifted]
        je      .next
        push    cx
        call    DrawRestingCrock
        pop     cx
.next:  inc     bx
        loop    .cell
        ret

; What stands over a yard that is done, drawn into `picture`.
DrawDonePanel:
        push    es
        mov     es, [picture]
        mov     ax, 50
        mov     dx, 38
        mov     cx, 220
        mov     bp, 106
        call    ShadeRect
        mov     bl, kGlow + 10
        call    DrawFrame
        mov     word [hangul_unit], 2
        mov     word [hangul_pen], 2
        mov     si, text_done
        mov     ax, 81
        mov     dx, 45
        mov     bx, kNight * 256 + kGlow + 14
        call    DrawHangulEdged
        mov     word [hangul_unit], 1
        mov     word [hangul_pen], 1
        mov     di, text_done_pushes
        mov     ax, [pushes]
        call    FormatShort
        call    FindEnd
        mov     si, text_done_steps
        push    es
        push    ds
        pop     es
        call    CopyText
        pop     es
        mov     ax, [steps]
        call    FormatShort
        mov     si, text_done_line
        mov     dx, 82
        mov     bx, kNight * 256 + kSnow + 15
        call    DrawHangulCentred
        mov     si, text_fewest
        mov     ax, [pushes]
        cmp     ax, [fewest]
        jbe     .praise
        mov     si, text_record
        cmp     byte [record_new], 0
        je      .next
.praise:
        mov     dx, 101
        mov     bx, kNight * 256 + kIce + 14
        call    DrawHangulCentred
.next:  mov     si, text_next
        mov     dx, 122
        mov     bx, kNight * 256 + kNight + 14
        call    DrawHangulCentred
        pop     es
        ret

; Up, left, right, down; then walking.
child_sprites:  dw sprite_back, sprite_side, sprite_side, sprite_front
                dw sprite_back_walks, sprite_side_walks, sprite_side_walks, sprite_front_walks
text_pushes:    db "밀기", 0
text_steps:     db "걸음", 0
text_done:      db "다 옮겼어요", 0
text_done_line: db "밀기 "
text_done_pushes: times 24 db 0
text_done_steps: db "   걸음 ", 0
text_fewest:    db "더 적게는 밀 수 없어요", 0
text_record:    db "지금까지 가장 적게 밀었어요", 0
text_next:      db "Enter 다음   R 다시", 0

section .bss
text_number:    resb 16
section .text
