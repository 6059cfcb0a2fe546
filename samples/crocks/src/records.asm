; The best of each yard: fewest pushes, then fewest steps. On disk a line for each: yard, pushes,
; steps; 0000 pushes: not done yet.

kLineBytes      equ 2 + 1 + 4 + 1 + 4 + 2
kTableBytes     equ kLevels * kLineBytes

; Takes the records from the file if all of it is sound; otherwise there are none.
LoadRecords:
        mov     dx, name_scores
        mov     di, file_buffer
        mov     cx, kTableBytes + 1
        call    ReadFile
        jc      .done
        cmp     ax, kTableBytes
        jne     .done
        mov     si, file_buffer
        xor     bx, bx
.check: call    LineIsSound
        jc      .done
        add     si, kLineBytes
        add     bx, 2
        cmp     bx, kLevels * 2
        jb      .check
        mov     si, file_buffer + 3
        xor     bx, bx
.take:  call    TakeFour
        mov     [best_pushes + bx], ax
        add     si, 5
        call    TakeFour
        mov     [best_steps + bx], ax
        add     si, kLineBytes - 5
        add     bx, 2
        cmp     bx, kLevels * 2
        jb      .take
        jmp     CountDone
.done:  ret

; Carry: the line SI is not what we write for the yard BX / 2.
LineIsSound:
        pusha
        mov     di, line_pattern
        mov     ax, bx
        shr     ax, 1
        inc     ax
        call    FormatTwo
        xor     bx, bx
.next:  mov     al, [si + bx]
        mov     ah, [di + bx]
        cmp     ah, '?'
        je      .digit
        cmp     al, ah
        jne     .bad
        jmp     .fine
.digit: cmp     al, '0'
        jb      .bad
        cmp     al, '9'
        ja      .bad
.fine:  inc     bx
        cmp     bx, kLineBytes
        jb      .next
        popa
        clc
        ret
.bad:   popa
        stc
        ret

; AX = the four digits at SI.
TakeFour:
        push    bx
        push    cx
        push    dx
        xor     ax, ax
        xor     bx, bx
.digit: mov     dx, 10
        mul     dx
        movzx   cx, byte [si + bx]
        sub     cx, '0'
        add     ax, cx
        inc     bx
        cmp     bx, 4
        jb      .digit
        pop     dx
        pop     cx
        pop     bx
        ret

; AX as four digits at DI, DI = behind them.
FormatFour:
        push    cx
        push    dx
        cmp     ax, 9999
        jbe     .fits
        mov     ax, 9999
.fits:  xor     dx, dx
        mov     cx, 100
        div     cx
        call    FormatTwo
        add     di, 2
        mov     ax, dx
        call    FormatTwo
        add     di, 2
        pop     dx
        pop     cx
        ret

; The yard [level] is done: notes it in the log, and in the records if it is one. `record_new` tells
; whether.
EnterRecord:
        mov     byte [record_new], 0
        call    LogDone
        mov     bx, [level]
        shl     bx, 1
        mov     ax, [pushes]
        mov     cx, [best_pushes + bx]
        jcxz    .better
        cmp     ax, cx
        ja      .done
        jb      .better
        mov     dx, [steps]
        cmp     dx, [best_steps + bx]
        jae     .done
.better:
        mov     [best_pushes + bx], ax
        mov     ax, [steps]
        mov     [best_steps + bx], ax
        mov     byte [record_new], 1
        call    CountDone
        jmp     SaveRecords
.done:  ret

SaveRecords:
        mov     di, file_buffer
        xor     bx, bx
.line:  mov     ax, bx
        shr     ax, 1
        inc     ax
        call    FormatTwo
        add     di, 2
        mov     byte [di], ' '
        inc     di
        mov     ax, [best_pushes + bx]
        call    FormatFour
        mov     byte [di], ' '
        inc     di
        mov     ax, [best_steps + bx]
        call    FormatFour
        mov     word [di], 0A0Dh
        add     di, 2
        add     bx, 2
        cmp     bx, kLevels * 2
        jb      .line
        mov     dx, name_scores
        mov     si, file_buffer
        mov     cx, kTableBytes
        jmp     WriteFile

; `yards_done` from the records.
CountDone:
        mov     word [yards_done], 0
        xor     bx, bx
.yard:  cmp     word [best_pushes + bx], 1
        cmc
        adc     word [yards_done], 0
        add     bx, 2
        cmp     bx, kLevels * 2
        jb      .yard
        ret

; The log of this start: a line for each yard done.
BeginLog:
        mov     dx, name_log
        xor     cx, cx
        jmp     WriteFile

LogDone:
        mov     ax, [level]
        inc     ax
        mov     di, text_log_level
        call    FormatTwo
        mov     ax, [pushes]
        mov     di, text_log_pushes
        call    FormatFour
        mov     ax, [steps]
        mov     di, text_log_steps
        call    FormatFour
        mov     dx, name_log
        mov     si, text_log
        mov     cx, kLogBytes
        jmp     AppendFile

name_scores:    db "SCORES.DAT", 0
name_log:       db "LAST.TXT", 0
line_pattern:   db "00 ???? ????", 13, 10
text_log:       db "LEVEL "
text_log_level: db "00 DONE PUSHES "
text_log_pushes: db "0000 STEPS "
text_log_steps: db "0000", 13, 10
kLogBytes       equ $ - text_log

section .bss
best_pushes:    resw kLevels
best_steps:     resw kLevels
yards_done:     resw 1
record_new:     resb 1
file_buffer:    resb kTableBytes + 1
section .text
