; The picture of the play.

kHudY           equ 190

DrawPlayFrame:
        cmp     byte [hud_stale], 0
        je      .frame
        mov     byte [hud_stale], 0
        mov     es, [picture]
        call    DrawHud
.frame: call    BeginFrame
        call    DrawTwinkles
        call    DrawSparks
        call    DrawThings
        call    DrawPlayer
        call    DrawRisings
        call    DrawBanner
        jmp     ShowFrame

; Hearts, the night and its count, the score; part of the scenery, drawn when one of them changes.
DrawHud:
        xor     ax, ax
        mov     dx, kHudY - 2
        mov     cx, kWidth
        mov     bp, kHeight - kHudY + 2
        mov     bl, kHill
        call    FillRect
        mov     cx, [lives]
        mov     ax, 6
        mov     dx, kHudY
        mov     si, sprite_heart
.heart: jcxz    .night
        call    DrawSprite
        add     ax, 11
        dec     cx
        jmp     .heart
.night: call    NightRow
        movzx   ax, byte [si + Night.goal]
        mov     di, text_hud_goal
        call    FormatTwo
        mov     ax, [caught]
        mov     di, text_hud_caught
        call    FormatTwo
        mov     ax, [level]
        mov     di, text_hud_level
        call    FormatTwo
        mov     si, text_hud
        mov     dx, kHudY + 1
        mov     bl, kGrey + 14
        call    DrawCentred
        mov     di, text_hud_score
        call    FormatScore
        mov     si, text_hud_score
        mov     ax, kWidth - 6 - 6 * 8
        mov     bl, kGold + 13
        call    DrawText
        call    Multiplier
        cmp     ax, 2
        jb      .done
        add     al, '0'
        mov     [text_hud_times + 1], al
        mov     si, text_hud_times
        mov     ax, kWidth - 6 - 9 * 8
        mov     bl, kRose + 13
        call    DrawText
.done:  ret

DrawThings:
        mov     si, things
        mov     cx, kThings
.thing: movzx   bx, byte [si + Thing.kind]
        test    bx, bx
        jz      .next
        push    si
        test    byte [si + Thing.age], 16
        jz      .first
        add     bx, kThingHeart
.first: shl     bx, 1
        mov     ax, [si + Thing.x]
        mov     dx, [si + Thing.y]
        sar     dx, 6
        sub     ax, 5
        sub     dx, 5
        mov     si, [thing_sprites + bx]
        call    DrawSprite
        pop     si
.next:  add     si, Thing_size
        loop    .thing
        ret

; The two children and the blanket between them.
DrawPlayer:
        call    DrawBlanket
        xor     bx, bx
        test    byte [run_ticks], 8
        jz      .still
        mov     bx, 4
.still: mov     cx, [player_x]
        sar     cx, 6
        mov     ax, cx
        sub     ax, [half_width]
        sub     ax, 8
        mov     dx, kCatchEnd - 17
        mov     si, [child_sprites + bx]
        call    DrawSprite
        mov     ax, cx
        add     ax, [half_width]
        sub     ax, 2
        mov     si, [child_sprites + bx + 2]
        jmp     DrawSprite

; It hangs in a curve, deeper for a moment when something fell into it.
DrawBlanket:
        mov     bp, [half_width]
        mov     cx, bp
        neg     cx
.column:
        mov     ax, cx
        imul    ax, ax
        shl     ax, 4
        push    cx
        mov     cx, bp
        imul    cx, cx
        xor     dx, dx
        div     cx                      ; 0 in the middle, 16 at the ends
        pop     cx
        neg     ax
        add     ax, 16
        mov     dx, [bounce]
        shr     dx, 1
        add     dx, 5
        imul    dx, ax
        shr     dx, 4
        add     dx, kCatchEnd - 8
        mov     ax, [player_x]
        sar     ax, 6
        add     ax, cx
        mov     bl, kRose + 14
        test    cl, 4
        jz      .thread
        mov     bl, kGold + 14
.thread:
        call    PutPixel
        sub     bl, 4
        inc     dx
        call    PutPixel
        inc     dx
        call    PutPixel
        sub     bl, 4
        inc     dx
        call    PutPixel
        inc     cx
        cmp     cx, bp
        jle     .column
        ret

; The words in the middle of the screen, by phase.
DrawBanner:
        mov     word [text_shading], 1
        mov     word [text_scale], 2
        cmp     byte [phase], kWait
        je      .wait
        cmp     byte [phase], kCounted
        je      .counted
        cmp     byte [phase], kOver
        jne     .done
        mov     word [text_scale], 3
        mov     si, text_over
        mov     dx, 66
        mov     bl, kRose + 6
        call    DrawCentred
        jmp     .done
.wait:  mov     si, text_night
        mov     di, text_night_level
        mov     ax, [level]
        call    FormatTwo
        mov     dx, 60
        mov     bl, kGold + 7
        call    DrawCentred
        call    NightWords
        jmp     .below
.counted:
        mov     si, text_counted
        mov     dx, 60
        mov     bl, kGold + 7
        call    DrawCentred
        mov     ax, [bonus]
        mov     di, text_bonus_number
        call    FormatShort
        mov     si, text_bonus
.below: mov     word [text_scale], 1
        mov     dx, 84
        mov     bl, kSilver + 7
        call    DrawCentred
.done:  mov     word [text_shading], 0
        mov     word [text_scale], 1
        ret

DrawPause:
        mov     es, [frame]
        mov     word [text_scale], 2
        mov     si, text_pause
        mov     dx, 110
        mov     bl, kWhite
        call    DrawCentred
        mov     word [text_scale], 1
        jmp     ShowFrame

; `score` as six digits at DI.
FormatScore:
        pushad
        mov     eax, [score]
        mov     ebx, 10
        mov     cx, 6
        add     di, cx
.digit: dec     di
        xor     edx, edx
        div     ebx
        add     dl, '0'
        mov     [di], dl
        loop    .digit
        popad
        ret

; By kind, then once more for the other half of the time.
thing_sprites:  dw 0, sprite_star, sprite_comet, sprite_ember, sprite_heart
                dw sprite_star_bright, sprite_comet, sprite_ember, sprite_heart
child_sprites:  dw sprite_sister, sprite_brother, sprite_sister_runs, sprite_brother_runs

text_hud:         db "NIGHT "
text_hud_level:   db "00  "
text_hud_caught:  db "00/"
text_hud_goal:    db "00", 0
text_hud_score:   db "000000", 0
text_hud_times:   db "x0", 0
text_night:       db "NIGHT "
text_night_level: db "00", 0
text_counted:     db "ALL COUNTED", 0
text_bonus:       db "hearts +"
text_bonus_number: db "00000", 0
text_over:        db "GAME OVER", 0
text_pause:       db "PAUSE", 0
