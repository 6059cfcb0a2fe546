; The help, over the evening's scenery.

ShowHelp:
        call    StopSound
        mov     es, [picture]
        call    DrawScenery
        mov     ax, 8
        mov     dx, 6
        mov     cx, 304
        mov     bp, 188
        call    ShadeRect
        mov     bl, kNight + 10
        call    DrawFrame
        mov     bx, help_lines
.line:  mov     dx, [bx]
        cmp     dx, -1
        je      .pictures
        mov     ax, [bx + 2]
        mov     si, [bx + 4]
        push    bx
        mov     bl, [bx + 6]
        mov     bh, kNight
        call    DrawHangulEdged
        pop     bx
        add     bx, 7
        jmp     .line
.pictures:
        mov     bx, help_pictures
.picture:
        mov     ax, [bx]
        cmp     ax, -1
        je      .frame
        mov     dx, [bx + 2]
        mov     si, [bx + 4]
        call    DrawSprite
        add     bx, 6
        jmp     .picture
.frame: call    TakeTicks
        mov     cx, ax
        call    MoveSnow
        call    BeginFrame
        mov     cx, 20
        call    DrawSnow
        call    ShowFrame
        call    NextPress
        jz      .frame
        ret

help_pictures:  dw 20, 32, sprite_front, 18, 50, sprite_crock, 18, 70, sprite_crock_home
                dw -1
help_lines:
                dw 12, 110, help_1
                db kGlow + 14
                dw 34, 42, help_2
                db kSnow + 14
                dw 53, 42, help_3
                db kSnow + 14
                dw 73, 42, help_4
                db kSnow + 14
                dw 95, 20, help_5
                db kIce + 14
                dw 115, 20, help_6
                db kGlow + 13
                dw 133, 20, help_7
                db kGlow + 13
                dw 151, 20, help_8
                db kGlow + 13
                dw 172, 20, help_9
                db kSnow + 10
                dw -1
help_1:         db "장독대 도움말", 0
help_2:         db "아이가 항아리를 밀고 다녀요", 0
help_3:         db "당길 수 없고 하나씩만 밀려요", 0
help_4:         db "모두 돌 위에 놓으면 끝나요", 0
help_5:         db "얼음 위의 항아리는 미끄러져요", 0
help_6:         db "화살표: 걷기   R: 처음부터", 0
help_7:         db "Z, U, Backspace: 되돌리기", 0
help_8:         db "M: 소리   Esc: 나가기", 0
help_9:         db "Push all crocks onto the stones.", 0
