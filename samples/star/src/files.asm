; Files in the current directory. When the disk refuses, the game goes on without a word.

; Tells other programs, once, that the title can be seen.
TellReady:
        cmp     byte [told_ready], 0
        jne     .done
        mov     byte [told_ready], 1
        mov     dx, name_ready
        mov     si, text_ready
        mov     cx, kReadyBytes
        jmp     WriteFile
.done:  ret

; DX = name.
RemoveFile:
        mov     ah, 41h
        int     21h
        ret

; Makes the file DX anew, with CX bytes from SI. Carry: not written.
WriteFile:
        push    cx
        xor     cx, cx
        mov     ah, 3Ch
        int     21h
        pop     cx
        jc      .done
        jmp     WriteAndClose
.done:  ret

; AX = open file, CX bytes from SI.
WriteAndClose:
        mov     bx, ax
        mov     dx, si
        mov     ah, 40h
        int     21h
        mov     ah, 3Eh
        int     21h
        ret

name_ready:     db "READY.TXT", 0
text_ready:     db "READY", 13, 10
kReadyBytes     equ $ - text_ready
told_ready:     db 0
