; The five best. The table in memory is the file: a line each of initials, score and night.

kBest           equ 5
kInitials       equ 3
kScoreAt        equ kInitials + 1       ; in a line
kScoreDigits    equ 6
kNightAt        equ kScoreAt + kScoreDigits + 1
kLineBytes      equ kNightAt + 2 + 2    ; with the line's end
kTableBytes     equ kBest * kLineBytes

; Takes the table from the file if that is sound; otherwise the one that we come with stays.
LoadScores:
        mov     dx, name_scores
        mov     di, file_buffer
        mov     cx, kTableBytes + 1
        call    ReadFile
        jc      .done
        cmp     ax, kTableBytes
        jne     .done
        mov     si, file_buffer
        mov     cx, kBest
.line:  call    LineIsSound
        jc      .done
        add     si, kLineBytes
        loop    .line
        mov     si, file_buffer
        mov     di, score_table
        mov     cx, kTableBytes
        rep     movsb
.done:  ret

; Carry: the line SI is not what we write. A line is compared with its pattern, letter by letter.
LineIsSound:
        pusha
        mov     di, line_pattern
        mov     cx, kLineBytes
.next:  mov     al, [si]
        mov     ah, [di]
        cmp     ah, '9'
        je      .digit
        cmp     ah, 'A'
        je      .letter
        cmp     al, ah
        jne     .bad
.fine:  inc     si
        inc     di
        loop    .next
        popa
        clc
        ret
.letter:
        cmp     al, ' '
        je      .fine
        cmp     al, 'A'
        jb      .bad
        cmp     al, 'Z'
        jbe     .fine
.bad:   popa
        stc
        ret
.digit: cmp     al, '0'
        jb      .bad
        cmp     al, '9'
        ja      .bad
        jmp     .fine

; A game is over: if it is one of the five best, it gets its line, the player's initials in it, and
; the file is written. `new_line` is its place, kBest if it has none.
EnterScore:
        call    MakeLine
        call    FindPlace
        mov     [new_line], bx
        cmp     bx, kBest
        jae     .done
        call    InsertLine
        call    AskInitials
        mov     dx, name_scores
        mov     si, score_table
        mov     cx, kTableBytes
        call    WriteFile
.done:  ret

; `own_line` = the game's line, without initials yet.
MakeLine:
        mov     di, own_line + kScoreAt
        call    FormatScore
        mov     di, own_line + kNightAt
        mov     ax, [level]
        jmp     FormatTwo

; BX = place of `own_line` in the table: behind those that are as good.
FindPlace:
        push    ds
        pop     es
        xor     bx, bx
        mov     eax, [score]
        test    eax, eax
        jz      .none
        mov     dx, score_table + kScoreAt
.line:  mov     si, dx
        mov     di, own_line + kScoreAt
        mov     cx, kScoreDigits
        repe    cmpsb
        jb      .done
        add     dx, kLineBytes
        inc     bx
        cmp     bx, kBest
        jb      .line
.done:  ret
.none:  mov     bx, kBest
        ret

; Makes room at the place BX and puts `own_line` there.
InsertLine:
        push    ds
        pop     es
        mov     cx, kBest - 1
        sub     cx, bx
        imul    cx, cx, kLineBytes
        mov     si, score_table + kTableBytes - kLineBytes - 1
        mov     di, score_table + kTableBytes - 1
        std
        rep     movsb
        cld
        imul    di, bx, kLineBytes
        add     di, score_table
        mov     si, own_line
        mov     cx, kLineBytes
        rep     movsb
        ret

; Lets the player type the initials of the line `new_line`.
AskInitials:
        imul    bx, [new_line], kLineBytes
        add     bx, score_table
        mov     word [typed], 0
        call    ForgetKeys
        mov     byte [score_foot], 0
.frame: push    bx
        call    TakeTicks
        call    DrawScoreFrame
        pop     bx
        call    ReadKey
        jz      .frame
        mov     si, [typed]
        cmp     ah, kKeyEnter
        je      .enter
        cmp     ah, kKeyBackspace
        je      .back
        and     al, 0DFh
        cmp     al, 'A'
        jb      .frame
        cmp     al, 'Z'
        ja      .frame
        cmp     si, kInitials
        jae     .frame
        mov     [bx + si], al
        inc     word [typed]
        jmp     .frame
.back:  test    si, si
        jz      .frame
        dec     word [typed]
        mov     byte [bx + si - 1], ' '
        jmp     .frame
.enter: test    si, si
        jz      .frame                  ; one letter at least
        mov     word [typed], -1
        ret

; The table, until a key or ten seconds.
ShowScores:
        mov     byte [score_foot], 1
        call    ForgetKeys
        mov     word [score_ticks], 0
.frame: call    TakeTicks
        add     [score_ticks], ax
        call    DrawScoreFrame
        call    ReadKey
        jnz     .done
        cmp     word [score_ticks], kTicksPerSecond * 10
        jb      .frame
.done:  mov     word [new_line], kBest
        ret

DrawScoreFrame:
        call    BeginFrame
        mov     ax, 28
        mov     dx, 18
        mov     cx, 264
        mov     bp, 140
        call    ShadeRect
        call    DrawTwinkles
        mov     word [text_shading], 1
        mov     word [text_scale], 2
        mov     si, text_best
        mov     dx, 26
        mov     bl, kGold + 7
        call    DrawCentred
        mov     word [text_scale], 1
        xor     bp, bp
.line:  call    DrawScoreLine
        inc     bp
        cmp     bp, kBest
        jb      .line
        mov     si, text_initials
        cmp     byte [score_foot], 0
        je      .foot
        mov     si, text_any_key
.foot:  mov     word [text_shading], 0
        mov     dx, 144
        mov     bl, kGrey + 13
        call    DrawCentred
        jmp     ShowFrame

; BP = line of the table. The player's own one shines, with a cursor while it is being typed.
DrawScoreLine:
        imul    si, bp, kLineBytes
        add     si, score_table
        mov     ax, bp
        add     al, '1'
        mov     [text_rank], al
        mov     di, text_line_initials
        mov     cx, kInitials
        call    CopyLetters
        inc     si
        mov     di, text_line_score
        mov     cx, kScoreDigits
        call    CopyLetters
        inc     si
        mov     di, text_line_night
        mov     cx, 2
        call    CopyLetters
        mov     bl, kSilver + 6
        cmp     bp, [new_line]
        jne     .draw
        mov     bl, kRose + 7
        mov     si, [typed]
        cmp     si, kInitials
        jae     .draw
        test    byte [ticks], 16
        jz      .draw
        mov     byte [text_line_initials + si], '_'
.draw:  imul    dx, bp, 16
        add     dx, 58
        mov     si, text_line
        jmp     DrawCentred

; CX letters from SI to DI.
CopyLetters:
        mov     al, [si]
        mov     [di], al
        inc     si
        inc     di
        loop    CopyLetters
        ret

line_pattern:   db "AAA 999999 99", 13, 10
own_line:       db "    000000 00", 13, 10
score_table:    db "SUN 002500 06", 13, 10
                db "HAN 001500 05", 13, 10
                db "ORI 000900 04", 13, 10
                db "MOM 000500 03", 13, 10
                db "PEL 000150 02", 13, 10
new_line:       dw kBest
typed:          dw -1

text_best:      db "STAR COUNTERS", 0
text_line:
text_rank:      db "0.   "
text_line_initials: db "       "
text_line_score: db "000000   night "
text_line_night: db "00", 0
text_initials:  db "Type your initials, then Enter", 0
text_any_key:   db "Press a key", 0
