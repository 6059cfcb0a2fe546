; The title screen.

; Runs the title. Carry: Esc, the player leaves.
RunTitle:
        mov     es, [picture]
        call    DrawScenery
        call    DrawHangulTitle
        mov     word [text_shading], 1
        mov     si, text_title
        mov     dx, 114
        mov     bl, kSilver + 8
        call    DrawCentred
        mov     word [text_shading], 0
        mov     si, text_title_keys
        mov     dx, 188
        mov     bl, kGrey + 12
        call    DrawCentred
        xor     ax, ax
        call    SetLight
        call    DrawTitleFrame
        call    FadeIn
        call    WaitRetrace
        call    TellReady
        mov     si, tune_title
        call    PlaySound
        call    ForgetKeys
.frame: call    TakeTicks
        call    DrawTitleFrame
        call    ReadKey
        jz      .frame
        cmp     ah, kKeyEsc
        je      .leave
        cmp     ah, kKeyEnter
        jne     .frame
        call    StopSound
        clc
        ret
.leave: call    StopSound
        stc
        ret

DrawTitleFrame:
        call    BeginFrame
        jmp     ShowFrame

text_title:      db "COUNTING STARS AT NIGHT", 0
text_title_keys: db "ENTER play   S scores   Esc leave", 0
