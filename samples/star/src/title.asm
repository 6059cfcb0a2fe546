; The title screen.

kTitleTicks     equ kTicksPerSecond * 16  ; then the scores are shown for a while

; Runs the title. Carry: Esc, the player leaves.
RunTitle:
        xor     ax, ax
        call    SetLight
        call    DrawTitlePicture
        call    DrawTitleFrame
        call    FadeIn
        call    WaitRetrace
        call    ForgetKeys              ; who waits for the file may press a key at once
        call    TellReady
        mov     si, tune_title
        call    PlaySound
.again: mov     word [title_ticks], 0
.frame: call    TakeTicks
        call    UpdateTitle
        call    DrawTitleFrame
        cmp     word [title_ticks], kTitleTicks
        jae     .scores
        call    ReadKey
        jz      .frame
        cmp     ah, kKeyEsc
        je      .leave
        cmp     ah, kKeyEnter
        je      .play
        or      al, 20h
        cmp     al, ' '
        je      .play
        cmp     al, 'm'
        je      .sound
        cmp     al, 's'
        jne     .frame
.scores:
        mov     es, [picture]
        call    DrawScenery
        call    ShowScores
        call    DrawTitlePicture
        jmp     .again
.sound: call    ToggleSound
        jmp     .frame
.play:  call    StopSound
        call    FadeOut
        clc
        ret
.leave: call    StopSound
        stc
        ret

DrawTitlePicture:
        call    ClearEffects
        mov     es, [picture]
        call    DrawScenery
        call    DrawHangulTitle
        mov     word [text_shading], 1
        mov     si, text_title
        mov     dx, 118
        mov     bl, kSilver + 8
        call    DrawCentred
        mov     word [text_shading], 0
        mov     si, text_title_keys
        mov     dx, 188
        mov     bl, kGrey + 11
        jmp     DrawCentred

; AX = ticks. Now and then a meteor crosses the sky: a head that leaves sparks.
kMeteorEach     equ kTicksPerSecond * 3
kMeteorTicks    equ 50

UpdateTitle:
        mov     cx, ax
        add     [title_ticks], ax
.tick:  push    cx
        call    MoveSparks
        call    StepMeteor
        pop     cx
        loop    .tick
        ret

StepMeteor:
        pusha
        inc     word [meteor_age]
        cmp     word [meteor_age], kMeteorEach
        jb      .fly
        mov     word [meteor_age], 0
        mov     di, seed_effects
        mov     bx, kWidth - 80
        call    RandomBelow
        add     ax, 100
        shl     ax, 6
        mov     [meteor_x], ax
        mov     bx, 30 * 64
        call    RandomBelow
        mov     [meteor_y], ax
.fly:   cmp     word [meteor_age], kMeteorTicks
        jae     .done
        sub     word [meteor_x], 140
        add     word [meteor_y], 64
        mov     ax, [meteor_x]
        cmp     ax, kWidth * 64
        jae     .done
        mov     dx, [meteor_y]
        mov     bl, kSilver
        mov     bh, 31
        mov     cx, 6
        call    AddSpark
        sub     ax, 70
        add     dx, 32
        call    AddSpark
.done:  popa
        ret

DrawTitleFrame:
        call    BeginFrame
        call    DrawTwinkles
        call    DrawSparks
        test    byte [ticks], 32
        jz      .shown
        mov     si, text_press_enter
        mov     dx, 138
        mov     bl, kGold + 14
        call    DrawCentred
.shown: jmp     ShowFrame

meteor_age:       dw kMeteorEach - 60
text_title:       db "COUNTING STARS AT NIGHT", 0
text_press_enter: db "PRESS ENTER", 0
text_title_keys:  db "S scores    M sound    Esc leave", 0

tune_title:
                notes kE4,14, 0,2, kG4,14, 0,2, kA4,30, 0,2, kG4,14, 0,2, kE4,14, 0,2, kD4,30, 0,2, \
                      kE4,14, 0,2, kG4,14, 0,2, kC5,30, 0,2, kA4,14, 0,2, kG4,46, 0,2, \
                      kA4,14, 0,2, kC5,14, 0,2, kD5,30, 0,2, kC5,14, 0,2, kA4,14, 0,2, kG4,30, 0,2, \
                      kE4,14, 0,2, kD4,14, 0,2, kC4,60
